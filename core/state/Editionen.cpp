#include "core/state/Editionen.h"

#include "core/state/AppState.h"

namespace zp {

Edition AktuelleEdition(const AppState& s) {
    if (s.IstKalender != 0) return Edition::Kalender;
    if (s.IstEtikett != 0) return Edition::Etikett;
    if (s.IstVisitenkarte != 0) return Edition::Visitenkarte;
    if (s.IstBriefkopf != 0) return Edition::Briefkopf;
    if (s.IstCDHuelle != 0) return Edition::CDHuelle;
    return Edition::Keine;
}

std::vector<Steuerelementregel> Editionsregeln(Edition e) {
    auto aus = [](const char* n) { return Steuerelementregel{QString::fromUtf8(n), false, std::nullopt}; };
    auto an = [](const char* n) { return Steuerelementregel{QString::fromUtf8(n), true, std::nullopt}; };
    auto titel = [](const char* n, const char* t) {
        return Steuerelementregel{QString::fromUtf8(n), std::nullopt, QString::fromUtf8(t)};
    };
    // Hidden in the three editions that print from the side panel's records or the calendar.
    const std::vector<Steuerelementregel> gemeinsam = {aus("mnuBrief"), aus("mnuWord"),
                                                       aus("mnuViewSeitenbreite"), aus("mnuHilfsbereiche")};
    std::vector<Steuerelementregel> r;
    switch (e) {
    case Edition::Kalender:
        r = gemeinsam;
        r.insert(r.end(),
                 {aus("mnudatumeinfuegen"), aus("mnuzeit"), aus("mnuseriennummer"), an("mnuFeiertage"),
                  an("mnukalender"), an("mnuVerankernAlle"), an("mnuVerankernKeine"), aus("mnuDesign"),
                  aus("mnuKartengrösse"), aus("mnuBildSpeichern"), an("mnuFileSaveAs2"),
                  titel("mnuFileSaveAs", "Design speichern unter..."),
                  titel("mnuFileSave", "Daten speichern"), aus("Toolbar4"), an("Toolbar5")});
        break;
    case Edition::Etikett:
        r = gemeinsam;
        r.insert(r.end(), {titel("mnuDesign", "Etikettendesign"), titel("mnuKartengrösse", "Etikettengröße"),
                           an("mnuimport"), an("Toolbar4")});
        break;
    case Edition::Visitenkarte:
        r = gemeinsam;
        r.insert(r.end(), {aus("mnuseriennummer"), an("Toolbar4")});
        break;
    default:
        break;
    }
    return r;
}

Panelwahl StartPanels(Edition e) {
    switch (e) {
    case Edition::Kalender:
        return {{1, 6, 7, 8, 9}, 8};
    case Edition::Visitenkarte:
        return {{4}, 4};
    case Edition::Etikett:
        return {{1}, 1};
    default:
        return {{4}, 4}; // button 2 of Toolbar4 is pressed
    }
}

QString Eingabebeschriftung(Edition e, int i) {
    // The business card names the record's first four fields; the label sheet numbers its texts
    // and its record fields.
    if (e == Edition::Visitenkarte && i >= 21 && i <= 28) {
        static const char* const namen[] = {"Name", "Straße", "Ort", "Telefon", "...", "...", "...", "..."};
        return QString::fromUtf8(namen[i - 21]);
    }
    if (e == Edition::Etikett) {
        if (i >= 1 && i <= 10) return QStringLiteral("Text %1").arg(i);
        if (i >= 21 && i <= 29) return QStringLiteral("Data %1").arg(i - 20);
    }
    if (i >= 21 && i <= 30) return QStringLiteral("Feld %1").arg(i - 20);
    return QStringLiteral("Text %1").arg(i);
}

} // namespace zp
