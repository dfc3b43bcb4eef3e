#pragma once

#include <array>
#include <string_view>

// The names that the sample estate uses. Makers and models are fictitious.
namespace server::sample {

struct Place {
    std::u16string_view country;
    std::u16string_view city;
    std::u16string_view code; // begins the names of the printers there
};

struct Model {
    std::u16string_view name;
    std::string_view id;
};

constexpr std::array<Place, 24> places = {{
    {u"Germany", u"Berlin", u"BER"},  {u"Germany", u"München", u"MUC"},    {u"Germany", u"Hamburg", u"HAM"},
    {u"Germany", u"Köln", u"CGN"},    {u"France", u"Paris", u"PAR"},       {u"France", u"Lyon", u"LYS"},
    {u"France", u"Besançon", u"BES"}, {u"Sweden", u"Göteborg", u"GOT"},    {u"Sweden", u"Malmö", u"MMX"},
    {u"Poland", u"Łódź", u"LCJ"},     {u"Poland", u"Kraków", u"KRK"},      {u"Poland", u"Gdańsk", u"GDN"},
    {u"Spain", u"Málaga", u"AGP"},    {u"Spain", u"Bilbao", u"BIO"},       {u"Portugal", u"Porto", u"OPO"},
    {u"Portugal", u"Lisboa", u"LIS"}, {u"Greece", u"Θεσσαλονίκη", u"SKG"}, {u"Greece", u"Αθήνα", u"ATH"},
    {u"Japan", u"東京", u"TYO"},      {u"Japan", u"大阪", u"OSA"},         {u"Canada", u"Montréal", u"YUL"},
    {u"Canada", u"Toronto", u"YYZ"},  {u"Ireland", u"Cork", u"ORK"},       {u"Ireland", u"Galway", u"GWY"},
}};

constexpr std::array<Model, 10> models = {{
    {u"Halvek LaserOne 2300", "5d0e6a1c-0d0b-4b52-9a39-5a1f5f0d1a01"},
    {u"Halvek LaserOne 2350dn", "5d0e6a1c-0d0b-4b52-9a39-5a1f5f0d1a02"},
    {u"Halvek ColorPress C71", "5d0e6a1c-0d0b-4b52-9a39-5a1f5f0d1a03"},
    {u"Mirado Folio 12", "5d0e6a1c-0d0b-4b52-9a39-5a1f5f0d1a04"},
    {u"Mirado Folio 40 MFP", "5d0e6a1c-0d0b-4b52-9a39-5a1f5f0d1a05"},
    {u"Mirado Plan A0", "5d0e6a1c-0d0b-4b52-9a39-5a1f5f0d1a06"},
    {u"Tessen Works 550", "5d0e6a1c-0d0b-4b52-9a39-5a1f5f0d1a07"},
    {u"Tessen Works 780 Color", "5d0e6a1c-0d0b-4b52-9a39-5a1f5f0d1a08"},
    {u"Quillmark Label 4", "5d0e6a1c-0d0b-4b52-9a39-5a1f5f0d1a09"},
    {u"Quillmark Dot 24", "5d0e6a1c-0d0b-4b52-9a39-5a1f5f0d1a0a"},
}};

struct Maker {
    std::u16string_view name; // begins the names of its models
    std::string_view id;
};

constexpr std::array<Maker, 6> makers = {{
    {u"Halvek", "9b2c7f40-61d3-4e0a-b8c5-2f7a90d4e101"},
    {u"Mirado", "9b2c7f40-61d3-4e0a-b8c5-2f7a90d4e103"},
    {u"Ørbæk Tryk", "9b2c7f40-61d3-4e0a-b8c5-2f7a90d4e104"},
    {u"Quillmark", "9b2c7f40-61d3-4e0a-b8c5-2f7a90d4e105"},
    {u"Tessen", "9b2c7f40-61d3-4e0a-b8c5-2f7a90d4e106"},
    {u"Kestwick", "9b2c7f40-61d3-4e0a-b8c5-2f7a90d4e102"}, // without models
}};

// Known models of which the estate has no printer.
constexpr std::array<Model, 9> furtherModels = {{
    {u"Halvek LaserOne 1100", "5d0e6a1c-0d0b-4b52-9a39-5a1f5f0d1b01"},
    {u"Halvek LaserOne 2500", "5d0e6a1c-0d0b-4b52-9a39-5a1f5f0d1b02"},
    {u"Halvek ColorPress C91", "5d0e6a1c-0d0b-4b52-9a39-5a1f5f0d1b03"},
    {u"Mirado Folio 8", "5d0e6a1c-0d0b-4b52-9a39-5a1f5f0d1b04"},
    {u"Mirado Plan A1", "5d0e6a1c-0d0b-4b52-9a39-5a1f5f0d1b05"},
    {u"Ørbæk Tryk Fjord 3", "5d0e6a1c-0d0b-4b52-9a39-5a1f5f0d1b06"},
    {u"Ørbæk Tryk Fjord 5 Farve", "5d0e6a1c-0d0b-4b52-9a39-5a1f5f0d1b07"},
    {u"Quillmark Label 6 Wide", "5d0e6a1c-0d0b-4b52-9a39-5a1f5f0d1b08"},
    {u"Tessen Works 910", "5d0e6a1c-0d0b-4b52-9a39-5a1f5f0d1b09"},
}};

constexpr std::array<std::u16string_view, 8> people = {u"Marta Keller",  u"Jonas Brandt", u"Ewa Nowicka",
                                                       u"Linnéa Åberg",  u"Tomé Barros",  u"Κώστας Βέργος",
                                                       u"Aoife Tierney", u"佐伯 直美"};

constexpr std::array<std::u16string_view, 10> rooms = {
    u"Reception",  u"Copy room",    u"Open-plan office", u"Mail room", u"Warehouse",
    u"Laboratory", u"Meeting room", u"Accounts",         u"Personnel", u"Drawing office"};

constexpr std::array<std::u16string_view, 8> comments = {u"",
                                                         u"Paper tray 2 holds letterheads",
                                                         u"Service contract until the end of the year",
                                                         u"Colour only for marketing",
                                                         u"",
                                                         u"Spare toner in the cupboard next to it",
                                                         u"Borrowed from the training centre",
                                                         u""};

} // namespace server::sample
