// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "treewords.h"

namespace stemwright::bench
{

std::span<const std::string_view> Surnames()
{
    static constexpr std::string_view words[] = {
        "Abbott",       "Baker",     "Barnes",   "Bauer",      "Becker",    "Bergström", "Bianchi",   "Björnsson",
        "Brown",        "Carter",    "Čapek",    "Clarke",     "Cooper",    "Cruz",      "Dubois",    "Dvořák",
        "Edwards",      "Eriksen",   "Evans",    "Fischer",    "Fournier",  "García",    "Gonçalves", "Grant",
        "Gray",         "Hall",      "Hansen",   "Harris",     "Hill",      "Hoffmann",  "Hughes",    "Ivanov",
        "Jensen",       "Johansson", "Kowalski", "Krüger",     "Lambert",   "Larsen",    "Lefèvre",   "López",
        "MacDonald",    "Marsh",     "Meyer",    "Moreau",     "Muñoz",     "Müller",    "Nagy",      "Nielsen",
        "Novák",        "O'Brien",   "Olsen",    "Ørsted",     "Parker",    "Petrović",  "Quinn",     "Rossi",
        "Schäfer",      "Schmidt",   "Şahin",    "Smith",      "Söderberg", "Taylor",    "Tóth",      "Turner",
        "van den Berg", "Walker",    "Weiß",     "Wiśniewski", "Wood",      "Young",     "Žukauskas", "Иванов",
        "Шевченко",     "Παππάς",    "Γεωργίου", "李",
    };
    return words;
}

std::span<const std::string_view> MaleNames()
{
    static constexpr std::string_view words[] = {
        "Adam",     "Albert",  "André",  "Anton",   "Arthur",   "Björn",   "Carl",   "Charles", "Christian", "Daniel",
        "David",    "Edward",  "Émile",  "Erik",    "Ernst",    "Ferenc",  "Frank",  "Franz",   "Frederick", "George",
        "Giovanni", "Günther", "Hans",   "Harold",  "Heinrich", "Henry",   "Jakob",  "James",   "Jan",       "Jean",
        "Jørgen",   "John",    "José",   "Joseph",  "Karl",     "Lars",    "Louis",  "Luís",    "Mathias",   "Michael",
        "Niels",    "Oskar",   "Otto",   "Patrick", "Paul",     "Peter",   "René",   "Richard", "Robert",    "Samuel",
        "Søren",    "Stefan",  "Thomas", "Václav",  "Wilhelm",  "William", "Zoltán", "Пётр",    "Γιώργος",   "明",
    };
    return words;
}

std::span<const std::string_view> FemaleNames()
{
    static constexpr std::string_view words[] = {
        "Ada",       "Agnes",    "Alice",    "Anna",      "Anneliese", "Barbara",   "Beatrice", "Berta",   "Brigitte",
        "Bożena",    "Caroline", "Cécile",   "Charlotte", "Clara",     "Dorothea",  "Edith",    "Eleanor", "Elisabeth",
        "Ellen",     "Emma",     "Éva",      "Florence",  "Frances",   "Frida",     "Grace",    "Greta",   "Hannah",
        "Helen",     "Ida",      "Inés",     "Ingeborg",  "Jane",      "Jeanne",    "Johanna",  "Julia",   "Karen",
        "Katharina", "Kirsten",  "Lena",     "Louise",    "Lucía",     "Magdalena", "Margaret", "María",   "Marie",
        "Martha",    "Mary",     "Mathilde", "Nora",      "Rosa",      "Ruth",      "Sarah",    "Sofia",   "Susan",
        "Teresa",    "Ursula",   "Zofia",    "Анна",      "Ελένη",     "梅",
    };
    return words;
}

std::span<const std::string_view> Places()
{
    static constexpr std::string_view words[] = {
        "Aarhus, Jutland, Denmark",
        "Albany, New York, USA",
        "Århus Domkirke, Aarhus, Jutland, Denmark",
        "Bath, Somerset, England",
        "Bergen, Hordaland, Norway",
        "Boston, Suffolk, Massachusetts, USA",
        "Brno, Moravia",
        "Cádiz, Andalucía, Spain",
        "Chester, Cheshire, England",
        "Christchurch, Canterbury, New Zealand",
        "Cork, Ireland",
        "Danzig, Westpreußen",
        "Debrecen, Hajdú, Hungary",
        "Fürth, Mittelfranken, Bayern",
        "Galway, Ireland",
        "Göteborg, Västergötland, Sweden",
        "Graz, Steiermark, Austria",
        "Halifax, Nova Scotia, Canada",
        "Hereford, Herefordshire, England",
        "Inverness, Scotland",
        "Köln, Rheinland",
        "København, Sjælland, Denmark",
        "Kraków, Małopolska, Poland",
        "Lancaster, Lancaster County, Pennsylvania, USA",
        "Leiden, Zuid-Holland, Netherlands",
        "Liège, Belgium",
        "Lisboa, Portugal",
        "Lyon, Rhône, France",
        "Málaga, Andalucía, Spain",
        "Melbourne, Victoria, Australia",
        "Milano, Lombardia, Italy",
        "Nantes, Loire-Atlantique, France",
        "Norwich, Norfolk, England",
        "Odense, Fyn, Denmark",
        "Philadelphia, Pennsylvania, USA",
        "Plymouth, Devon, England",
        "Québec, Canada",
        "Rīga, Latvia",
        "São Paulo, Brazil",
        "Springfield, Sangamon, Illinois, USA",
        "Tromsø, Troms, Norway",
        "Uppsala, Uppland, Sweden",
        "Whitby, Yorkshire, England",
        "York, Yorkshire, England",
        "Zürich, Switzerland",
        "Санкт-Петербург",
        "Θεσσαλονίκη",
    };
    return words;
}

std::span<const std::string_view> Occupations()
{
    static constexpr std::string_view words[] = {
        "Baker",     "Blacksmith",    "Carpenter", "Cooper",     "Farmer",    "Fisherman",
        "Innkeeper", "Lawyer",        "Mason",     "Merchant",   "Midwife",   "Miller",
        "Pastor",    "Schoolteacher", "Seaman",    "Seamstress", "Shoemaker", "Weaver",
    };
    return words;
}

std::span<const std::string_view> EventTypes()
{
    static constexpr std::string_view words[] = {
        "Military service", "Graduation", "Land purchase", "Citizen's oath", "Voyage", "Apprenticeship",
    };
    return words;
}

std::span<const std::string_view> Sentences()
{
    static constexpr std::string_view words[] = {
        "The parish register spells the name in three different ways.",
        "A letter of that year speaks of a long illness and a short journey.",
        "Named in the will of an uncle, with a cow and two silver spoons.",
        "The house by the river stood until the great flood.",
        "Witnesses were the godparents & the miller's eldest son.",
        "According to the census the household kept a servant and an apprentice.",
        "Älteste Tochter; wohnte bei den Großeltern.",
        "Nothing further is known.",
    };
    return words;
}

} // namespace stemwright::bench
