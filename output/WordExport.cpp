#include "output/WordExport.h"

#include "core/runtime/TextDatei.h"
#include "core/state/AppState.h"
#include "core/state/Oberflaeche.h"
#include "core/state/Zeichenkontext.h"

#include <QBuffer>
#include <QDesktopServices>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextDocumentWriter>
#include <QTextImageFormat>
#include <QUrl>

namespace zp {

namespace {

const QString kTitel = QStringLiteral("Word");
const QString kBildname = QStringLiteral("zp-seite.png");
constexpr double kTextspalteMm = 160;
constexpr double kPixelJeMm = 96.0 / 25.4; // the document's lengths are pixels at 96 dpi

} // namespace

QString NeuerDokumentpfad() {
    QString ordner = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    if (ordner.isEmpty() || !QDir().mkpath(ordner)) ordner = QDir::tempPath();
    const QDir dir(ordner);
    QString pfad = dir.filePath(QStringLiteral("ZP-Seite.odt"));
    for (int n = 2; QFileInfo::exists(pfad); ++n)
        pfad = dir.filePath(QStringLiteral("ZP-Seite %1.odt").arg(n));
    return pfad;
}

std::unique_ptr<QTextDocument> Worddokument(const QImage& seite, double breiteMm) {
    auto dokument = std::make_unique<QTextDocument>();
    dokument->addResource(QTextDocument::ImageResource, QUrl(kBildname), seite);
    QTextCursor cursor(dokument.get());
    if (!seite.isNull()) {
        QTextImageFormat bild;
        bild.setName(kBildname);
        double mm = breiteMm > 0 ? breiteMm : seite.width() / kPixelJeMm;
        if (mm > kTextspalteMm) mm = kTextspalteMm;
        bild.setWidth(mm * kPixelJeMm);
        bild.setHeight(mm * kPixelJeMm * seite.height() / std::max(1, seite.width()));
        cursor.insertImage(bild);
    }
    for (int i = 0; i < kLeerzeilenUnterDemBild + 1; ++i)
        cursor.insertBlock();
    cursor.insertText(QStringLiteral("Texteingabe"));
    return dokument;
}

bool SchreibeWorddokument(const QImage& seite, double breiteMm, QIODevice& ziel) {
    const auto dokument = Worddokument(seite, breiteMm);
    QTextDocumentWriter schreiber(&ziel, "odf");
    return schreiber.write(dokument.get());
}

QString mnuWord(AppState& s, Oberflaeche& o, const Exportbild& exportbild, const QString& ziel,
                bool oeffnen) {
    QImage seite;
    try {
        const Zeichenkontext kontext(s, Zeichenkontext::Art::Export);
        seite = exportbild(s);
    } catch (...) {
        o.Meldung(QStringLiteral("Die Seite konnte nicht als Bild gezeichnet werden."), kTitel);
        return {};
    }

    if (seite.isNull()) {
        o.Meldung(QStringLiteral("Die Seite konnte nicht als Bild gezeichnet werden."), kTitel);
        return {};
    }
    // The word processor gets the page as a bitmap would hold it: opaque, 8 bits a colour.
    const QImage bild = seite.convertToFormat(QImage::Format_RGB32);

    const double breiteMm =
        (s.AktuellesEtikett.Breite > 0 ? s.AktuellesEtikett.Breite : s.AktuelleSeite.Breite) / 10.0;
    const QString pfad = ziel.isEmpty() ? NeuerDokumentpfad() : ziel;
    // The zip writer closes its device: the document is built in memory, then written in one step.
    QBuffer puffer;
    puffer.open(QIODevice::WriteOnly);
    QString grund;
    if (!SchreibeWorddokument(bild, breiteMm, puffer))
        grund = QStringLiteral("Das Dokument konnte nicht erzeugt werden.");
    if (!grund.isEmpty() || !SchreibeDateiAtomar(pfad, puffer.data(), &grund)) {
        o.Meldung(QStringLiteral("Das Dokument konnte nicht geschrieben werden."), kTitel,
                  QDir::toNativeSeparators(pfad) + QStringLiteral(": ") + grund);
        return {};
    }
    if (oeffnen && !QDesktopServices::openUrl(QUrl::fromLocalFile(pfad))) {
        o.Meldung(QStringLiteral("Es wurde kein Programm gefunden, das das Dokument öffnet. Es wurde unter "
                                 "%1 gespeichert.")
                      .arg(QDir::toNativeSeparators(pfad)),
                  kTitel);
    }
    return pfad;
}

} // namespace zp
