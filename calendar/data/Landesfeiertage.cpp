#include "calendar/data/Landesfeiertage.h"

#include "core/runtime/Basic.h"
#include "core/state/AppState.h"

#include <algorithm>
#include <set>

namespace zp {

using basic::DateSerial;
using basic::Weekday;

const QStringList& Zusatzschalter() {
    static const QStringList liste = {QStringLiteral("Reformationstag"), QStringLiteral("Frauentag"),
                                      QStringLiteral("Weltkindertag"), QStringLiteral("Muttertag"),
                                      QStringLiteral("Sommerzeit")};
    return liste;
}

namespace {

bool An(const AppState& s, int schalter) {
    return s.FeiertagWahl.Gueltig(schalter) && s.FeiertagWahl(schalter) == 1;
}

void Dazuschreiben(AppState& s, const QDate& datum, const QString& text) {
    QString& zelle = s.Feiertage(datum.day(), datum.month());
    if (zelle.isEmpty())
        zelle = text;
    else if (zelle != text)
        zelle += QStringLiteral(", ") + text;
}

// The last Sunday of a month, for the change of summer time (EU rule since 1996).
QDate LetzterSonntag(int jahr, int monat) {
    QDate tag = DateSerial(jahr, monat + 1, 0);
    return tag.addDays(-(Weekday(tag) - 1));
}

} // namespace

void SchreibeZusatzfeiertage(AppState& s, int jahr) {
    if (An(s, 26)) Dazuschreiben(s, DateSerial(jahr, 10, 31), QStringLiteral("Reformationstag"));
    if (An(s, 27)) Dazuschreiben(s, DateSerial(jahr, 3, 8), QStringLiteral("Frauentag"));
    if (An(s, 28)) Dazuschreiben(s, DateSerial(jahr, 9, 20), QStringLiteral("Weltkindertag"));
    if (An(s, 29)) {
        // The second Sunday of May: the first Sunday on or after 8 May.
        const QDate achter = DateSerial(jahr, 5, 8);
        Dazuschreiben(s, achter.addDays((8 - Weekday(achter)) % 7), QStringLiteral("Muttertag"));
    }
    if (An(s, 30)) {
        Dazuschreiben(s, LetzterSonntag(jahr, 3), QStringLiteral("Sommerzeit"));
        Dazuschreiben(s, LetzterSonntag(jahr, 10), QStringLiteral("Winterzeit"));
    }
}

// ---- States -------------------------------------------------------------------------------

namespace {

// Switches: 1 Neujahr, 2 Hl. drei Könige, 6 Karfreitag, 8 Ostersonntag, 9 Ostermontag,
// 10 Maifeiertag, 11 Christi Himmelfahrt, 12 Pfingstsonntag, 13 Pfingstmontag, 14 Fronleichnam,
// 15 Maria Himmelfahrt, 16 Tag der Deutschen Einheit, 17 Allerheiligen, 18 Buß- und Bettag,
// 23 and 24 Weihnachten, 26 Reformationstag, 27 Frauentag, 28 Weltkindertag.
//
// Nationwide: the holidays every state's law names, and 3 October by the Unification Treaty
// (Einigungsvertrag Art. 2 Abs. 2).
const std::vector<int> kBundesweit = {1, 6, 9, 10, 11, 13, 16, 23, 24};

struct Land {
    const char* name;
    std::vector<int> dazu; // beyond the nationwide ones
};

// Each state's own holidays, from its holiday law as in force in 2024. Where a law names a
// holiday for some communities only, the larger part of the state decides: Maria Himmelfahrt
// stands for all of Bayern (most of its communities keep it), Fronleichnam in Sachsen and
// Thüringen and the Augsburg Friedensfest are left out.
const Land kLaender[] = {
    // Gesetz über die Sonntage und Feiertage (FTG BW) § 1
    {"Baden-Württemberg", {2, 14, 17}},
    // Gesetz über den Schutz der Sonn- und Feiertage (Feiertagsgesetz – FTG) Art. 1
    {"Bayern", {2, 14, 15, 17}},
    // Gesetz über die Sonn- und Feiertage (Berlin) § 1, Frauentag since 2019
    {"Berlin", {27}},
    // Feiertagsgesetz Brandenburg (FTG) § 2: Easter and Whit Sunday as holidays of their own
    {"Brandenburg", {8, 12, 26}},
    // Gesetz über die Sonn- und Feiertage (Bremen) § 2, Reformationstag since 2018
    {"Bremen", {26}},
    // Gesetz über Sonntage und Feiertage (Hamburg) § 1, Reformationstag since 2018
    {"Hamburg", {26}},
    // Hessisches Feiertagsgesetz (HFeiertagsG) § 1: Easter and Whit Sunday named as well
    {"Hessen", {8, 12, 14}},
    // Gesetz über Sonn- und Feiertage (Feiertagsgesetz Mecklenburg-Vorpommern – FTG M-V) § 2,
    // Frauentag since 2023
    {"Mecklenburg-Vorpommern", {26, 27}},
    // Niedersächsisches Gesetz über die Feiertage (NFeiertagsG) § 2, Reformationstag since 2018
    {"Niedersachsen", {26}},
    // Gesetz über die Sonn- und Feiertage (Feiertagsgesetz NW) § 2
    {"Nordrhein-Westfalen", {14, 17}},
    // Landesgesetz über den Schutz der Sonn- und Feiertage (LFtG Rheinland-Pfalz) § 2
    {"Rheinland-Pfalz", {14, 17}},
    // Gesetz Nr. 1040 über die Sonn- und Feiertage (Saarland, SFG) § 2
    {"Saarland", {14, 15, 17}},
    // Gesetz über Sonn- und Feiertage im Freistaat Sachsen (SächsSFG) § 1
    {"Sachsen", {18, 26}},
    // Gesetz über die Sonn- und Feiertage (Sachsen-Anhalt, FeiertG LSA) § 2
    {"Sachsen-Anhalt", {2, 26}},
    // Gesetz über Sonn- und Feiertage (Schleswig-Holstein, SFTG) § 2, Reformationstag since 2018
    {"Schleswig-Holstein", {26}},
    // Thüringer Feiertagsgesetz (ThürFtG) § 2, Weltkindertag since 2019
    {"Thüringen", {26, 28}},
};

} // namespace

const QStringList& Bundeslaender() {
    static const QStringList liste = [] {
        QStringList l{QStringLiteral("bundesweit")};
        for (const Land& land : kLaender)
            l << QString::fromUtf8(land.name);
        return l;
    }();
    return liste;
}

std::vector<int> GesetzlicheSchalter(const QString& land) {
    std::vector<int> schalter;
    if (land == QLatin1String("bundesweit")) return kBundesweit;
    for (const Land& l : kLaender) {
        if (land != QString::fromUtf8(l.name)) continue;
        schalter = kBundesweit;
        schalter.insert(schalter.end(), l.dazu.begin(), l.dazu.end());
        std::sort(schalter.begin(), schalter.end());
        return schalter;
    }
    return schalter;
}

const std::vector<int>& LandesabhaengigeSchalter() {
    static const std::vector<int> alle = [] {
        std::set<int> menge(kBundesweit.begin(), kBundesweit.end());
        for (const Land& l : kLaender)
            menge.insert(l.dazu.begin(), l.dazu.end());
        return std::vector<int>(menge.begin(), menge.end());
    }();
    return alle;
}

bool BundeslandVorwahl(const QString& land, Feiertagshaken& haken) {
    const std::vector<int> gesetzlich = GesetzlicheSchalter(land);
    if (gesetzlich.empty()) return false;
    for (int schalter : LandesabhaengigeSchalter())
        haken[static_cast<size_t>(schalter - 1)] = false;
    for (int schalter : gesetzlich)
        haken[static_cast<size_t>(schalter - 1)] = true;
    return true;
}

} // namespace zp
