// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "KestCore/Prayer/Places.h"

#include "Base/Text.h"
#include "KestCore/Devotional/Calendar.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <unicode/timezone.h>

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <memory>
#include <set>

namespace KestCore
{

namespace
{

using testing::ElementsAre;
using testing::HasSubstr;
using testing::SizeIs;

std::vector<std::string> found(std::string_view query, std::size_t limit)
{
    std::vector<std::string> names;
    for (const Place *place : searchPlaces(query, limit)) {
        names.push_back(std::string{place->name} + ", " + std::string{place->country});
    }
    return names;
}

// The capitals of the states of the world, by country and under a name that people type.
constexpr std::string_view kCapitals =
    "AF Kabul|AL Tirana|DZ Algiers|AD Andorra la Vella|AO Luanda|AG Saint John's|"
    "AR Buenos Aires|AM Yerevan|AU Canberra|AT Vienna|AZ Baku|BS Nassau|BH Manama|BD Dhaka|"
    "BB Bridgetown|BY Minsk|BE Brussels|BZ Belmopan|BJ Porto-Novo|BT Thimphu|BO Sucre|"
    "BO La Paz|BA Sarajevo|BW Gaborone|BR Brasilia|BN Bandar Seri Begawan|BG Sofia|"
    "BF Ouagadougou|BI Gitega|CV Praia|KH Phnom Penh|CM Yaounde|CA Ottawa|CF Bangui|"
    "TD N'Djamena|CL Santiago|CN Beijing|CO Bogota|KM Moroni|CG Brazzaville|CD Kinshasa|"
    "CR San Jose|CI Yamoussoukro|HR Zagreb|CU Havana|CY Nicosia|CZ Prague|DK Copenhagen|"
    "DJ Djibouti|DM Roseau|DO Santo Domingo|EC Quito|EG Cairo|SV San Salvador|GQ Malabo|"
    "ER Asmara|EE Tallinn|SZ Mbabane|ET Addis Ababa|FJ Suva|FI Helsinki|FR Paris|"
    "GA Libreville|GM Banjul|GE Tbilisi|DE Berlin|GH Accra|GR Athens|GD Saint George's|"
    "GT Guatemala City|GN Conakry|GW Bissau|GY Georgetown|HT Port-au-Prince|HN Tegucigalpa|"
    "HU Budapest|IS Reykjavik|IN New Delhi|ID Jakarta|IR Tehran|IQ Baghdad|IE Dublin|"
    "IL Jerusalem|IT Rome|JM Kingston|JP Tokyo|JO Amman|KZ Astana|KE Nairobi|KI Tarawa|"
    "KP Pyongyang|KR Seoul|XK Pristina|KW Kuwait City|KG Bishkek|LA Vientiane|LV Riga|"
    "LB Beirut|LS Maseru|LR Monrovia|LY Tripoli|LI Vaduz|LT Vilnius|LU Luxembourg|"
    "MG Antananarivo|MW Lilongwe|MY Kuala Lumpur|MV Male|ML Bamako|MT Valletta|MH Majuro|"
    "MR Nouakchott|MU Port Louis|MX Mexico City|FM Palikir|MD Chisinau|MC Monaco|"
    "MN Ulaanbaatar|ME Podgorica|MA Rabat|MZ Maputo|MM Naypyidaw|NA Windhoek|NR Yaren|"
    "NP Kathmandu|NL Amsterdam|NZ Wellington|NI Managua|NE Niamey|NG Abuja|MK Skopje|NO Oslo|"
    "OM Muscat|PK Islamabad|PW Ngerulmud|PS Ramallah|PS East Jerusalem|PA Panama City|"
    "PG Port Moresby|PY Asuncion|PE Lima|PH Manila|PL Warsaw|PT Lisbon|QA Doha|RO Bucharest|"
    "RU Moscow|RW Kigali|KN Basseterre|LC Castries|VC Kingstown|WS Apia|SM San Marino|"
    "ST Sao Tome|SA Riyadh|SN Dakar|RS Belgrade|SC Victoria|SL Freetown|SG Singapore|"
    "SK Bratislava|SI Ljubljana|SB Honiara|SO Mogadishu|ZA Pretoria|ZA Cape Town|SS Juba|"
    "ES Madrid|LK Sri Jayewardenepura Kotte|LK Colombo|SD Khartoum|SR Paramaribo|SE Stockholm|"
    "CH Bern|SY Damascus|TW Taipei|TJ Dushanbe|TZ Dodoma|TH Bangkok|TL Dili|TG Lome|"
    "TO Nuku'alofa|TT Port of Spain|TN Tunis|TR Ankara|TM Ashgabat|TV Funafuti|UG Kampala|"
    "UA Kyiv|AE Abu Dhabi|GB London|US Washington|UY Montevideo|UZ Tashkent|VU Port Vila|"
    "VA Vatican City|VE Caracas|VN Hanoi|YE Sanaa|ZM Lusaka|ZW Harare";

} // namespace

TEST(Places, HoldEveryCapital)
{
    for (const std::string_view capital : Base::split(kCapitals, '|')) {
        const std::string country{capital.substr(0, 2)};
        const std::string query = std::string{capital.substr(3)} + ", " + country;
        const auto best = searchPlaces(query, 1);
        ASSERT_THAT(best, SizeIs(1)) << query;
        EXPECT_EQ(best.front()->country, country) << query;
    }
}

TEST(Places, HaveAClockAndAPositionThatFit)
{
    EXPECT_GT(allPlaces().size(), 5000U);
    const auto now = Base::fromSeconds1970(1'800'000'000.0); // a January
    std::set<std::tuple<std::string_view, double, double>> seen;
    for (const Place &place : allPlaces()) {
        SCOPED_TRACE(place.name);
        const std::string id{place.timeZone};
        const std::unique_ptr<icu::TimeZone> known{
            icu::TimeZone::createTimeZone(icu::UnicodeString::fromUTF8(id))};
        EXPECT_NE(*known, icu::TimeZone::getUnknown()) << id;
        const auto calendar = Calendar::inZone(place.timeZone);
        ASSERT_TRUE(calendar) << id;
        // The sun moves 15 degrees an hour; western China is 3 hours from its clock.
        const double sun = place.longitude / 15.0;
        const double hours = calendar->offsetAt(now).ahead.count() / 3600.0;
        EXPECT_LT(std::abs(std::remainder(hours - sun, 24.0)), 3.5) << id;
        EXPECT_TRUE(seen.emplace(place.name, place.latitude, place.longitude).second);
    }
}

TEST(Places, HaveTheTimeOfToday)
{
    struct Case {
        const char *query;
        double hours; // from UTC, in July 2026
    };
    const auto july = Base::fromSeconds1970(1'783'000'000.0);
    for (const auto &[query, hours] : {
             Case{"cairo", 3},
             Case{"amman", 3},
             Case{"damascus", 3},
             Case{"almaty", 5},
             Case{"barnaul", 7},
             Case{"saratov", 4},
             Case{"volgograd", 3},
             Case{"tomsk", 7},
             Case{"ciudad juarez", -6},
             Case{"mexico city", -6},
             Case{"punta arenas", -3},
             Case{"kostanay", 5},
             Case{"khabarovsk", 10},
             Case{"chita", 9},
             Case{"mecca", 3},
             Case{"kathmandu", 5.75},
         }) {
        const auto best = searchPlaces(query, 1);
        ASSERT_THAT(best, SizeIs(1)) << query;
        const auto calendar = Calendar::inZone(best.front()->timeZone);
        ASSERT_TRUE(calendar) << query;
        EXPECT_EQ(calendar->offsetAt(july).ahead.count(), hours * 3600.0) << query;
    }
}

TEST(SearchPlaces, PutsTheBestFitFirst)
{
    struct Case {
        const char *query;
        const char *first;
    };
    for (const auto &[query, first] : {
             Case{"Paris", "Paris, FR"},
             Case{"paris, us", "Paris, US"},
             Case{"Paris, United St", "Paris, US"}, // while typing
             Case{"paris usa", "Paris, US"},
             Case{"cairo egypt", "Cairo, EG"},
             Case{"birmingham", "Birmingham, GB"}, // larger than Alabama's
             Case{"birmingham, alabama", "Birmingham, US"},
             Case{"springfield, illi", "Springfield, US"},
             Case{"new york city united states", "New York City, US"},
             Case{"york", "York, GB"}, // the exact name, though New York is larger
             Case{"ZURICH", "Zürich, CH"},
             Case{"zürich", "Zürich, CH"},
             Case{"koeln", "Köln, DE"},
             Case{"lodz", "Łódź, PL"},
             Case{"sao paulo", "São Paulo, BR"},
             Case{"aix en provence", "Aix-en-Provence, FR"},
             Case{"st louis", "St. Louis, US"},
             Case{"cologne", "Köln, DE"},
             Case{"makkah", "Mecca, SA"},
             Case{"al-qahirah", "Cairo, EG"},
             Case{"القاهرة", "Cairo, EG"},
             Case{"مَكَّة المكرمة", "Mecca, SA"}, // with its vowel signs
             Case{"مكه", "Mecca, SA"},         // as it is typed in Egypt
             Case{"تهران", "Tehrān, IR"},
             Case{"IZMIR", "İzmir, TR"}, // in a Turkish session too
             Case{"  new   delhi ", "New Delhi, IN"},
             Case{"egypt", "Cairo, EG"},
             Case{"türkiye", "İstanbul, TR"},
         }) {
        EXPECT_THAT(found(query, 1), ElementsAre(first)) << query;
    }
    // Exact names, then those that begin so, then those with such a word; the larger first.
    EXPECT_THAT(found("alexandria", 3),
                ElementsAre("Alexandria, EG", "Alexandria, US", "Alexandria, RO"));
}

TEST(SearchPlaces, FindsNothingElse)
{
    for (const char *nothing :
         {"", " ", "-", ",", "xqzzk", "paris, egypt", "lexandri", "\xFF"}) {
        EXPECT_THAT(found(nothing, 10), SizeIs(0)) << nothing;
    }
    EXPECT_THAT(found("san", 3), SizeIs(3));
    EXPECT_THAT(found("san", 0), SizeIs(0));
}

TEST(SettingsForPlace, SayWhereAndThatItWasChosenByHand)
{
    const auto best = searchPlaces("Mecca", 1);
    ASSERT_THAT(best, SizeIs(1));
    EXPECT_EQ(settingsFor(*best.front()), (Settings{{"prayer.latitude", "21.43"},
                                                    {"prayer.longitude", "39.83"},
                                                    {"prayer.timezone", "Asia/Riyadh"},
                                                    {"prayer.country", "SA"},
                                                    {"prayer.city", "Mecca"},
                                                    {"prayer.locationMode", "manual"}}));
}

TEST(ParsePlaces, RefusesABadLine)
{
    const std::string above = "# a note\n=DE\tGermany\tDEU,x\n@Europe/Berlin\n:Hessen\n";
    const std::string whole = above + "Köln\tKoeln\t50.9\t-6.9\t963\t\n";
    const auto good = parsePlaces(whole);
    ASSERT_TRUE(good);
    EXPECT_EQ(good->front(), (Place{.name = "Köln",
                                    .asciiName = "Koeln",
                                    .country = "DE",
                                    .countryName = "Germany",
                                    .otherCountryNames = "DEU,x",
                                    .region = "Hessen",
                                    .timeZone = "Europe/Berlin",
                                    .latitude = 50.9,
                                    .longitude = -6.9,
                                    .population = 963'000}));
    for (const char *line : {
             "",
             "Ulm\t\t48\t10\t120",
             "Ulm\t\t48\t10\t120\t\t",
             "\t\t48\t10\t120\t",
             "Ulm\t\t90.1\t10\t120\t",
             "Ulm\t\t48\t-180.1\t120\t",
             "Ulm\t\tnan\t10\t120\t",
             "Ulm\t\t48N\t10\t120\t",
             "Ulm\t\t\t10\t120\t",
             "Ulm\t\t48\t10\t-1\t",
             "Ulm\t\t48\t10\t1.5\t",
             "=D\tGermany\t",
             "=DE\t\t",
             "=DE\tGermany",
             "@",
         }) {
        const auto parsed = parsePlaces(above + line + "\n# end\n");
        ASSERT_FALSE(parsed) << line;
        EXPECT_THAT(parsed.error().message, HasSubstr("line 5")) << line;
    }
    EXPECT_FALSE(parsePlaces("Ulm\t\t48\t10\t120\t\n"));
    EXPECT_FALSE(parsePlaces("@Europe/Berlin\n"));
    EXPECT_FALSE(parsePlaces("=DE\tGermany\t\n:Hessen\n"));
    EXPECT_FALSE(parsePlaces("=DE\tGermany\t\nUlm\t\t48\t10\t120\t\n"));
}

TEST(PlacesDeathTest, ABrokenListEndsTheProcess)
{
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    namespace fs = std::filesystem;
    const fs::path home = fs::path{testing::TempDir()} / "broken-places";
    fs::create_directories(home / "KestNative_KestCore.bundle");
    std::ofstream{home / "KestNative_KestCore.bundle" / "cities.tsv"} << "Ulm\n";
    EXPECT_DEATH(
        {
            setenv("KEST_RESOURCES", home.c_str(), 1);
            std::ignore = allPlaces();
        },
        "KestCore/Places.*cities.tsv is broken: bad line 1");
    fs::remove_all(home);
}

} // namespace KestCore
