#include "app/Kommandozeile.h"

#include "render/Bildwerk.h"

#include "core/Programmordner.h"
#include "core/Start.h"
#include "core/state/AppState.h"
#include "render/Bildwerk.h"

#include <QDir>
#include <QFileInfo>
#include <algorithm>
#include <cstdio>
#include <map>

namespace zp {

namespace {

// The table lives in a function so that registrations from any file's initialisers find it built.
std::map<QString, Option>& Optionstabelle() {
    static std::map<QString, Option> tabelle;
    return tabelle;
}

void Schreibe(const QString& text) {
    std::fputs(text.toLocal8Bit().constData(), stderr);
}

// The options that every run knows; the commands add theirs in files of their own.
const bool grundoptionen = [] {
    RegistriereOption(
        {QStringLiteral("--help"), {}, QStringLiteral("diese Übersicht zeigen"), OptionArt::Start, {}});
    RegistriereOption({QStringLiteral("--programmpfad"),
                       QStringLiteral("ORDNER"),
                       QStringLiteral("der Programmordner (ein neuer wird mit den mitgelieferten "
                                      "Daten eingerichtet)"),
                       OptionArt::Start,
                       {}});
    RegistriereOption(
        {QStringLiteral("--edition"), QStringLiteral("NAME"),
         QStringLiteral("die Ausgabe eines neuen Programmordners: ") + Editionen().join(QStringLiteral(", ")),
         OptionArt::Start, [](Batchlauf& lauf, const QString& name) {
             if (!NormaleEdition(name).isEmpty()) return true;
             lauf.Fehler(QStringLiteral("Unbekannte Ausgabe „%1“. Möglich sind: %2.")
                             .arg(name, Editionen().join(QStringLiteral(", "))));
             return false;
         }});
    return true;
}();

} // namespace

bool RegistriereOption(Option option) {
    auto& tabelle = Optionstabelle();
    const QString name = option.name;
    if (tabelle.count(name)) {
        Schreibe(QStringLiteral("zp: Die Option %1 ist doppelt eingetragen.\n").arg(name));
        return false;
    }
    tabelle.emplace(name, std::move(option));
    return true;
}

std::vector<const Option*> Optionen() {
    std::vector<const Option*> alle;
    for (const auto& [name, option] : Optionstabelle())
        alle.push_back(&option);
    return alle;
}

const Option* FindeOption(const QString& name) {
    const auto& tabelle = Optionstabelle();
    const auto it = tabelle.find(name);
    return it == tabelle.end() ? nullptr : &it->second;
}

bool Kommandozeile::HatAktionen() const {
    return std::any_of(aufrufe.begin(), aufrufe.end(),
                       [](const OptionAufruf& a) { return a.option->art == OptionArt::Aktion; });
}

std::optional<Kommandozeile> LeseKommandozeile(const QStringList& argumente, QString* fehler) {
    auto scheitern = [&](const QString& text) -> std::optional<Kommandozeile> {
        if (fehler) *fehler = text;
        return std::nullopt;
    };
    Kommandozeile zeile;
    for (qsizetype i = 0; i < argumente.size(); ++i) {
        QString name = argumente[i];
        QString wert;
        bool wertGegeben = false;
        // "--jahr=2004" is the same as "--jahr 2004".
        if (const qsizetype gleich = name.indexOf(u'='); name.startsWith(u"--") && gleich > 2) {
            wert = name.mid(gleich + 1);
            name = name.left(gleich);
            wertGegeben = true;
        }
        if (name == u"-h") name = QStringLiteral("--help");
        const Option* option = FindeOption(name);
        if (!option)
            return scheitern(
                QStringLiteral("Unbekannte Option „%1“. Eine Übersicht gibt zp --help.").arg(argumente[i]));
        if (!option->argument.isEmpty() && !wertGegeben) {
            if (i + 1 >= argumente.size())
                return scheitern(
                    QStringLiteral("Die Option %1 braucht einen Wert (%2).").arg(name, option->argument));
            wert = argumente[++i];
        } else if (option->argument.isEmpty() && wertGegeben) {
            return scheitern(QStringLiteral("Die Option %1 nimmt keinen Wert.").arg(name));
        }
        if (name == u"--help") zeile.hilfe = true;
        if (name == u"--programmpfad") zeile.programmpfad = wert;
        if (name == u"--edition") zeile.edition = wert;
        zeile.aufrufe.push_back({option, wert});
    }
    if (!zeile.edition.isEmpty() && NormaleEdition(zeile.edition).isEmpty())
        return scheitern(QStringLiteral("Unbekannte Ausgabe „%1“. Möglich sind: %2.")
                             .arg(zeile.edition, Editionen().join(QStringLiteral(", "))));
    return zeile;
}

QString Hilfetext() {
    QString text = QStringLiteral("Aufruf: zp [OPTIONEN]\n\n"
                                  "Ohne Befehl öffnet zp das Programmfenster. Mit Befehlen läuft es "
                                  "ohne Fenster und führt sie\nin der angegebenen Reihenfolge aus.\n\n");
    for (const Option* o : Optionen()) {
        const QString kopf = o->argument.isEmpty() ? o->name : o->name + u' ' + o->argument;
        text += QStringLiteral("  %1 %2\n").arg(kopf, -26).arg(o->hilfe);
    }
    text += QStringLiteral("\nMeldungen gehen auf die Standardfehlerausgabe. Rückgabewert 0 bei Erfolg, "
                           "1 bei einem Fehler.\n");
    return text;
}

bool BatchOberflaeche::Frage(const QString& text, const QString& titel) {
    Schreibe(QStringLiteral("zp: %1 %2 – %3\n")
                 .arg(titel, text, standardAntwort ? QStringLiteral("Ja") : QStringLiteral("Nein")));
    return standardAntwort;
}

void BatchOberflaeche::Meldung(const QString& text, const QString& titel, const QString& detail) {
    if (titel == u"Warnung!" || titel == u"Fehler") ++warnungen;
    QString zeile = QStringLiteral("zp: ");
    if (!titel.isEmpty()) zeile += titel + u' ';
    zeile += text;
    if (!detail.isEmpty()) zeile += QStringLiteral(" (") + detail + u')';
    Schreibe(zeile + u'\n');
}

void BatchOberflaeche::Statusmeldung(const QString& text) {
    // The window shows it in the status bar; without one it would be lost.
    Schreibe(QStringLiteral("zp: ") + text + u'\n');
}

bool Batchlauf::Hat(const QString& name) const {
    return std::any_of(zeile.aufrufe.begin(), zeile.aufrufe.end(),
                       [&](const OptionAufruf& a) { return a.option->name == name; });
}

QString Batchlauf::Wert(const QString& name, const QString& vorgabe) const {
    for (auto it = zeile.aufrufe.rbegin(); it != zeile.aufrufe.rend(); ++it)
        if (it->option->name == name) return it->argument;
    return vorgabe;
}

void Batchlauf::Fehler(const QString& text) const {
    MeldeFehler(text);
}

QString KeineDatei(const QString& datei) {
    const QFileInfo info(datei);
    if (info.isFile()) return {};
    if (info.isDir()) return QStringLiteral("Unter %1 steht ein Ordner, keine Datei.").arg(datei);
    return QStringLiteral("Die Datei %1 wurde nicht gefunden.").arg(datei);
}

void MeldeFehler(const QString& text) {
    Schreibe(QStringLiteral("zp: ") + text + u'\n');
}

int FuehreStapellaufAus(const Kommandozeile& zeile) {
    AppState s;
    BatchOberflaeche ui;
    return FuehreStapellaufAus(zeile, s, ui);
}

int FuehreStapellaufAus(const Kommandozeile& zeile, AppState& s, BatchOberflaeche& ui) {
    Batchlauf lauf{s, ui, zeile};
    // Values are checked before anything is written, so a typing error costs nothing.
    for (const OptionAufruf& a : zeile.aufrufe)
        if (a.option->art != OptionArt::Aktion && a.option->handler && !a.option->handler(lauf, a.argument))
            return 1;

    const QString ordner = WaehleProgrammordner(zeile.programmpfad, zeile.edition);
    QString fehler;
    const QString quelle = zeile.datenquelle.isEmpty() ? MitgelieferteDaten() : zeile.datenquelle;
    if (!RichteProgrammordnerEin(ordner, zeile.edition, quelle, &fehler)) {
        MeldeFehler(fehler);
        return 1;
    }
    Main(s, ordner, ui);
    // A picture that can't be loaded is told like every other message of the run.
    BildwerkVon(s).Meldungen = &ui;
    // Without its start document the program still runs on the built-in one, as the window
    // does; the run then ends with status 1.
    LadeStartzustand(s, ui);
    // In the window the first paint ends the start-up lock; the commands below must find it open,
    // or their change handlers would return at once.
    s.LadeSperre = 0;

    for (const OptionAufruf& a : zeile.aufrufe) {
        if (a.option->art != OptionArt::Aktion) continue;
        if (!a.option->handler(lauf, a.argument)) return 1;
    }
    return ui.warnungen > 0 ? 1 : 0;
}

} // namespace zp
