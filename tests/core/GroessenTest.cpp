// Files far larger than any real one, in the shapes that cost a reader most: many short lines,
// empty lines, one long line. Each reader runs in a child process, so that its peak memory can be
// measured with getrusage; it must refuse or read the file within the budget stated here.
#include "calendar/data/Kalenderdateien.h"
#include "tests/core/state/ProtokollOberflaeche.h"
#include "core/Importbefehl.h"
#include "core/runtime/TextDatei.h"
#include "core/state/AppState.h"
#include "persist/Datensaetze.h"
#include "persist/Design.h"
#include "persist/Einstellungen.h"
#include "persist/Katalogdateien.h"
#include "persist/Layout.h"

#include <QFile>
#include <QTemporaryDir>
#include <gtest/gtest.h>

#include <chrono>
#include <functional>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

using namespace zp;

namespace {

#if defined(__SANITIZE_ADDRESS__)
constexpr bool UnterSanitizer = true;
#elif defined(__has_feature)
#if __has_feature(address_sanitizer)
constexpr bool UnterSanitizer = true;
#else
constexpr bool UnterSanitizer = false;
#endif
#else
constexpr bool UnterSanitizer = false;
#endif

constexpr qint64 MB = 1 << 20;
// Memory: eight times the file, plus what the largest table of records may take on its own
// (100,000 records of 30 fields, each an empty or one-letter text).
constexpr double Speicherfaktor = 8;
constexpr double TabellenMB = 200;
// Time: a guard against a reader that loops or goes quadratic, not a speed goal.
constexpr double Zeitgrenze = 60;

struct Messung {
    double spitzeMB = -1; // growth of the peak resident memory
    double sekunden = -1;
};

// Runs `lesen` in a child process and reports its memory growth and time.
Messung ImKind(const std::function<void()>& lesen) {
    int rohr[2];
    if (pipe(rohr) != 0) return {};
    const pid_t kind = fork();
    if (kind == 0) {
        close(rohr[0]);
        rusage vor{}, nach{};
        getrusage(RUSAGE_SELF, &vor);
        const auto t0 = std::chrono::steady_clock::now();
        try {
            lesen();
        } catch (...) {
            _exit(3); // a reader must not throw past its caller
        }
        const std::chrono::duration<double> dauer = std::chrono::steady_clock::now() - t0;
        getrusage(RUSAGE_SELF, &nach);
        const Messung m{(nach.ru_maxrss - vor.ru_maxrss) / 1024.0, dauer.count()};
        (void)!write(rohr[1], &m, sizeof m);
        _exit(0);
    }
    close(rohr[1]);
    Messung m;
    (void)!read(rohr[0], &m, sizeof m);
    close(rohr[0]);
    int status = 0;
    waitpid(kind, &status, 0);
    EXPECT_TRUE(WIFEXITED(status) && WEXITSTATUS(status) == 0) << "status " << status;
    return m;
}

enum class Form { KurzeZeilen, LeereZeilen, LangeZeile };

// Writes `kopf` and then the shape up to `groesse` bytes, without holding the file in memory.
void Erzeuge(const QString& pfad, const QByteArray& kopf, Form form, qint64 groesse) {
    QFile f(pfad);
    ASSERT_TRUE(f.open(QIODevice::WriteOnly));
    f.write(kopf);
    const QByteArray muster = form == Form::KurzeZeilen   ? QByteArray("1\n").repeated(32768)
                              : form == Form::LeereZeilen ? QByteArray("\n").repeated(65536)
                                                          : QByteArray("1").repeated(65536);
    for (qint64 rest = groesse - kopf.size(); rest > 0; rest -= muster.size())
        f.write(muster.constData(), std::min<qint64>(rest, muster.size()));
}

// One reader: the file name it reads, a plausible head that gets it past its first lines, and
// how it is started on the program folder.
struct Leser {
    const char* name;
    const char* datei;
    QByteArray kopf;
    qint64 grenze;
    std::function<void(AppState&, Oberflaeche&, const QString& pfad)> lesen;
};

std::vector<Leser> AlleLeser() {
    const QByteArray designkopf = "ZP Datenfile\nZP Kalender\n800\n1\nReserve\nReserve\nReserve\nReserve\n"
                                  "Reserve\nRahmen\n400000\n";
    return {
        {"zp.ini", "zp.ini", "Programmname = ZP Etikett\n", GroessteKleineDatei,
         [](AppState& s, Oberflaeche& ui, const QString&) { LoadSettings(s, ui); }},
        {"kalender.ini", "kalender.ini", "1\n", GroessteKleineDatei,
         [](AppState& s, Oberflaeche& ui, const QString&) { LoadKalenderIni(s, ui); }},
        {"etikett.ini", "etikett.ini", "Eigenes Format 1\n", GroessteKleineDatei,
         [](AppState& s, Oberflaeche& ui, const QString&) { LoadKartenformate(s, ui); }},
        {"daten.dat", "daten.dat", "ZP Datenbank\nZP Etikett\n8.02\n20\n100000\n", GroessteDatei,
         [](AppState& s, Oberflaeche& ui, const QString&) { LadeDatensaetze(s, ui); }},
        {"design", "gross.zpk", designkopf, GroessteDatei,
         [](AppState& s, Oberflaeche& ui, const QString& pfad) {
             s.Ladevorgabe = pfad;
             LoadDesign(s, ui);
         }},
        {"layout", "Layout1.lay", designkopf, GroessteDatei,
         [](AppState& s, Oberflaeche& ui, const QString& pfad) {
             s.Ladevorgabe = pfad;
             LadeLayout(s, ui);
         }},
        {"zpd", "gross.zpd", "ZP Kalenderdaten\n", GroessteDatei,
         [](AppState& s, Oberflaeche& ui, const QString& pfad) { DatenOeffnen(s, ui, pfad); }},
        {"kal", "gross.kal", "", GroessteDatei,
         [](AppState& s, Oberflaeche& ui, const QString& pfad) { KalOeffnen(s, ui, pfad); }},
        {"txt", "gross.txt", "", GroessteDatei,
         [](AppState& s, Oberflaeche& ui, const QString& pfad) { Importieren(s, ui, pfad); }},
        {"eti", "gross.eti", "", GroessteDatei,
         [](AppState& s, Oberflaeche& ui, const QString& pfad) { Importieren(s, ui, pfad); }},
    };
}

void PruefeGroesse(const Leser& leser, Form form, qint64 groesse) {
    QTemporaryDir tmp;
    const QString pfad = tmp.filePath(QString::fromLatin1(leser.datei));
    Erzeuge(pfad, leser.kopf, form, groesse);
    const Messung m = ImKind([&] {
        AppState s;
        s.Programmpfad = tmp.path() + u'/';
        s.IstEtikett = -1;
        test::ProtokollOberflaeche ui;
        leser.lesen(s, ui, pfad);
    });
    const double budget = Speicherfaktor * groesse / MB + TabellenMB;
    EXPECT_GE(m.spitzeMB, 0);
    EXPECT_LE(m.spitzeMB, budget) << groesse / MB << " MB";
    EXPECT_LE(m.sekunden, Zeitgrenze);
    std::printf("%-12s Form %d, %5.1f MB: %7.1f MB Spitze, %5.2f s\n", leser.name, static_cast<int>(form),
                static_cast<double>(groesse) / MB, m.spitzeMB, m.sekunden);
}

} // namespace

TEST(Groessen, EveryReaderRefusesOrReadsHugeFilesWithinBudget) {
    if (UnterSanitizer) GTEST_SKIP() << "Speichermessung ohne Sanitizer";
    for (const Leser& leser : AlleLeser()) {
        for (const Form form : {Form::KurzeZeilen, Form::LeereZeilen, Form::LangeZeile}) {
            SCOPED_TRACE(std::string(leser.name) + " Form " + std::to_string(static_cast<int>(form)));
            PruefeGroesse(leser, form, 50 * MB);          // far past the limit: refused before reading
            PruefeGroesse(leser, form, leser.grenze - 1); // just inside it: read or refused in proportion
        }
    }
}

TEST(Groessen, RefusalNamesTheSizeAndTheLimit) {
    QTemporaryDir tmp;
    const QString pfad = tmp.filePath(QStringLiteral("daten.dat"));
    Erzeuge(pfad, "ZP Datenbank\n", Form::LeereZeilen, GroessteDatei + 1);
    QString grund;
    EXPECT_FALSE(LeseDatei(pfad, GroessteDatei, &grund).has_value());
    EXPECT_TRUE(grund.contains(QStringLiteral("höchstens 16,0 MB"))) << grund.toStdString();
    AppState s;
    s.Programmpfad = tmp.path() + u'/';
    test::ProtokollOberflaeche ui;
    EXPECT_FALSE(LadeDatensaetze(s, ui));
    EXPECT_EQ(ui.meldungen, QStringList{QStringLiteral("Falsches Datenformat")});
    EXPECT_TRUE(ui.detail_.contains(u"höchstens")) << ui.detail_.toStdString();
}
