-- A family for the tests of pages: the Harts, five generations from Thomas (1) with remarriages, a marriage of cousins,
-- unknown spouses, a living branch, and names that need escaping.
INSERT INTO Indi (Id, GivenName, Surname, Sex, Title, Suffix, Alias, BIRT_Date, BIRT_Place, DEAT_Date, FAMC) VALUES
  (1, 'Thomas ', ' Hart', 'M', 'Sir', NULL, NULL, '1 JAN 1800', 'York', '1870', NULL),
  (2, 'Ann', 'Reed', 'F', NULL, NULL, 'Nan', NULL, NULL, NULL, NULL),
  (3, 'Mary', 'Wood', 'F', NULL, NULL, NULL, NULL, NULL, NULL, NULL),
  (4, 'John', 'Hart', 'M', NULL, 'Jr', NULL, 'abt 1825', NULL, '1890', 1),
  (5, 'Jane', 'Hart', 'F', NULL, NULL, NULL, NULL, 'Leeds' || char(13, 10) || 'Yorkshire', NULL, 1),
  (6, 'William', 'Hart', 'M', NULL, NULL, NULL, NULL, NULL, NULL, 2),
  (7, 'Élise "Lili"', 'O''Neil & <Co>\', 'F', NULL, NULL, NULL, NULL, NULL, NULL, NULL),
  (8, 'Rose', 'Hart', 'F', NULL, NULL, NULL, '1850', NULL, NULL, 4),
  (9, 'Paul', 'Katz', 'M', NULL, NULL, NULL, NULL, NULL, NULL, 8),
  (10, 'Peter', 'Katz', 'M', NULL, NULL, NULL, '2 FEB 1852', NULL, NULL, 5),
  (11, 'Lucy "Lu"', 'Katz', 'F', NULL, NULL, NULL, '1880', NULL, NULL, 6),
  (12, 'Жан', 'Абай', 'M', NULL, NULL, NULL, NULL, NULL, NULL, NULL),
  (13, 'Vera', 'Vivid', 'F', NULL, NULL, NULL, '3 MAR 1990', 'Secretville', NULL, 7),
  (14, 'Otto', 'Old', 'M', NULL, NULL, NULL, '1801', NULL, NULL, NULL),
  (15, NULL, NULL, 'M', NULL, NULL, NULL, NULL, NULL, NULL, 3);
INSERT INTO Fam (Id, HusbandId, WifeId, Marriage_Date, Marriage_Place, _MSTAT) VALUES
  (1, 1, 2, '1824', 'York', NULL), (2, 1, 3, NULL, NULL, NULL), (3, 1, NULL, NULL, NULL, 'Friends'),
  (4, 4, 7, NULL, NULL, NULL), (5, 9, 5, NULL, NULL, NULL), (6, 10, 8, NULL, NULL, NULL),
  (7, 12, 11, NULL, NULL, NULL), (8, 14, NULL, NULL, NULL, NULL);
INSERT INTO Spouse2Fam (FamId, SpouseId) VALUES
  (1, 1), (1, 2), (2, 1), (2, 3), (3, 1), (4, 4), (4, 7), (5, 9), (5, 5), (6, 10), (6, 8), (7, 12), (7, 11), (8, 14);
INSERT INTO Fam2Child (FamId, ChildId, _FREL) VALUES
  (1, 4, NULL), (1, 5, NULL), (2, 6, NULL), (3, 15, NULL), (4, 8, NULL), (5, 10, NULL), (6, 11, NULL),
  (7, 13, 'Natural'), (8, 9, NULL);
INSERT INTO WebAddr (Id, Email1, Email2, WebPage) VALUES
  (6, 'will@example.org', NULL, 'example.org/~will'), (11, 'o''neil"x@example.org', 'b@example.org', NULL),
  (13, 'vera@secret.example', NULL, 'https://secret.example');
INSERT INTO SelectedItems (SetupName, ItemValue) VALUES
  ('Default', replace('Birth|BIRT|dp|Yes|b. | in |;||Indi', '|', char(9))),
  ('Default', replace('Death|DEAT|dp|Yes|d. | in |;|P|Indi', '|', char(9))),
  ('Default', replace('Marriage|Marriage|dp|Yes|m. | in |;||Fam', '|', char(9)));
