-- The rows that the queries of queries.txt are run on.
INSERT INTO Indi (Id, Surname, GivenName, Suffix, Title, BIRT_Date, BIRT_Place, FAMC) VALUES
  (1, 'Smith', 'John', NULL, NULL, '12 MAR 1850', '007', NULL),
  (2, 'SMITH', 'Ann', NULL, 'Dr.', NULL, NULL, NULL),
  (3, 'O''Brien', 'Élise', 'Jr.', NULL, '1880', 'Zürich', 10),
  (4, 'Яковлев', 'Иван', NULL, NULL, NULL, NULL, 10),
  (5, 'Éclair', 'Marie', NULL, NULL, NULL, NULL, NULL),
  (6, 'Eclair', 'Marie', NULL, NULL, NULL, NULL, 11),
  (7, NULL, 'Nameless', NULL, NULL, NULL, NULL, NULL);
INSERT INTO Fam (Id, HusbandId, WifeId, Marriage_Status) VALUES (10, 1, 2, NULL), (11, 4, NULL, 'Partners');
INSERT INTO Fam2Child (FamId, ChildId, _FREL) VALUES (10, 3, 'Natural'), (10, 4, NULL), (11, 6, NULL);
INSERT INTO Spouse2Fam (SpouseId, FamId) VALUES (1, 10), (2, 10), (4, 11);
INSERT INTO SchemaIndi (Fact, Tag, Label) VALUES
  ('_FA1', 'BURI', 'Burial'), ('_FA2', 'EVEN', 'O''Brien''s oath'), ('_FREL', '_FREL', 'Father');
INSERT INTO SchemaFam (Fact, Tag, Label) VALUES ('_FA1', 'EVEN', 'Partnership Ending Status'), ('_MSTAT', '_MSTAT', 'Status');
INSERT INTO AlbumTOC (PicId, PictureDate, Place, Title, ModificationDate, EncodPicDate, NamesLeft, PicType, PicFilename, Picture, Rectangle) VALUES
  (1, '1950', 'Paris', 'Wedding #1', '2026-03-12T14:05:00', '195000000', -1, 'jpg', 'IMG_1.jpg', x'FFD8', 0),
  (2, NULL, 'PARIS ', 'wedding #2', '2026-03-13T00:00:00', '999999999', 0, 'gif', 'a.gif', NULL, -1),
  (3, 'Abt. 1949', '', '100% wool', '2026-03-11T23:59:59', '194900001', NULL, 'gif', 'b.gif', x'47', 0),
  (4, NULL, NULL, NULL, NULL, '999999999', 0, 'gif', 'c.gif', x'47', -1),
  (5, '1900', 'Łódź', 'Who?', '2020-01-01T00:00:00', '190000000', 0, 'gif', 'd.gif', x'47', -1);
INSERT INTO Pic2Person (PicId, PersId, X, Y, Width, Height, Name) VALUES
  (1, 1, '10', '20', '0', '0', 'Smith, John'), (1, 2, '30', '20', '0', '0', 'SMITH, Ann'), (1, 0, '5', '5', '0', '0', 'o''brien'),
  (2, 1, '1', '1', '0', '0', 'Smith, John'), (3, 3, '1', '1', '0', '0', 'O''Brien, Élise');
INSERT INTO UniqueIds (Id, DuplicatesAlreadyFound) VALUES (1, 0), (2, NULL);
UPDATE TreeHeads SET TreeHeadId = 1, TreeHeadName = 'Smith, John';
INSERT INTO TreeHeads (SetupName, TreeHeadId, TreeHeadName, GenDisplayType, IconNo) VALUES ('Second ', 4, 'Яковлев', 'CollapsiTree', 3);
INSERT INTO Indi2Page (IndiId, AncestorId, TreeNumber, PageOwnerId, GenDisplayType, Name, Name4Index, AfterName) VALUES
  (1, '1', '1', '1', 'Outline', 'John Smith', 'Smith, John', NULL), (2, '1', '1', '1', 'Outline', 'Ann Smith', 'SMITH, Ann', NULL),
  (3, '1', '1', '1', 'Outline', 'Élise', 'Éclair', NULL), (3, '1', '1', '2', 'Outline', 'Élise', 'Éclair', NULL),
  (4, '4', '2', '4', 'CollapsiTree', 'Иван', 'Яковлев', NULL);
INSERT INTO WebAddr (Id, Email1) VALUES (3, 'elise@example.org');
INSERT INTO WebSiteInfo (SetupName, SiteTitle, WebPageFolder) VALUES ('second', 'Second site', '/tmp/second');
INSERT INTO PicListQueries (QueryName) VALUES ('élan'), ('Zoo');
INSERT INTO SelectedItems (SetupName, ItemValue) VALUES ('Second ', 'Title');
