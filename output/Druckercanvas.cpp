#include "output/Druckercanvas.h"

#include "core/runtime/Dateischreiber.h"
#include "output/Druckerliste.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QPageLayout>
#include <QPageSize>
#include <QPdfWriter>
#include <QPrinter>
#include <cstdio>

namespace zp {

namespace {
constexpr int kPdfAufloesung = 600;

QPageLayout Papier(const ClassSeite& seite) {
    double b = seite.Breite / 10.0, h = seite.Höhe / 10.0;
    if (b <= 0 || h <= 0) {
        b = 210;
        h = 297;
    }
    const bool quer = b > h;
    const QPageSize groesse(quer ? QSizeF(h, b) : QSizeF(b, h), QPageSize::Millimeter, QString(),
                            QPageSize::FuzzyMatch);
    return QPageLayout(groesse, quer ? QPageLayout::Landscape : QPageLayout::Portrait, QMarginsF());
}
} // namespace

DruckerHalter::DruckerHalter(const QString& drucker, const QString& pdfDatei, const ClassSeite& seite) {
    m_pdf = drucker == kPdfDatei;
    if (m_pdf) {
        m_ziel = QFileInfo(pdfDatei).absoluteFilePath();
        // A private file beside the target until the last page is done; a planted name can't
        // redirect it.
        m_zwischen = LegeZwischendateiAn(m_ziel, &m_anlegefehler);
        m_pdfDatei = std::make_unique<QPdfWriter>(m_zwischen);
        m_pdfDatei->setResolution(kPdfAufloesung);
        // The paper's corner is the origin: a file has no unprintable margin.
        m_pdfDatei->setPageLayout(Papier(seite));
        m_pdfDatei->setTitle(QStringLiteral("ZP"));
        m_geraet = m_pdfDatei.get();
        m_aufloesung = m_pdfDatei->resolution();
    } else {
        m_drucker = std::make_unique<QPrinter>(QPrinter::HighResolution);
        m_drucker->setPrinterName(drucker);
        const QPageLayout papier = Papier(seite);
        m_drucker->setPageSize(papier.pageSize());
        m_drucker->setPageOrientation(papier.orientation());
        m_drucker->setDocName(QStringLiteral("ZP"));
        m_geraet = m_drucker.get();
        m_aufloesung = m_drucker->resolution();
    }
}

DruckerHalter::~DruckerHalter() = default;

Druckercanvas::Druckercanvas(const QString& drucker, const QString& pdfDatei, const ClassSeite& seite)
    : DruckerHalter(drucker, pdfDatei, seite),
      PainterCanvas(m_maler, CanvasArt::Drucker, 1440.0 / std::max(1, m_aufloesung),
                    1440.0 / std::max(1, m_aufloesung)) {}

Druckercanvas::~Druckercanvas() {
    if (m_maler.isActive()) m_maler.end();
    // An unfinished file never replaces the target.
    if (m_pdf && !m_zwischen.isEmpty()) QFile::remove(m_zwischen);
}

void Druckercanvas::SeiteEinrichten() {
    m_maler.setRenderHint(QPainter::Antialiasing, false);
    m_maler.setRenderHint(QPainter::TextAntialiasing, true);
    SelectClipRgn(0);
    SetWindowOrgEx(0, 0);
    SetBkMode(true);
    FontTransparent = true;
}

bool Druckercanvas::Oeffne() {
    m_fehler.clear();
    if (m_pdf && m_auftragOffen) {
        // Further jobs of the request go on in the same file.
        NeueSeite();
        return true;
    }
    if (m_pdf && !QFileInfo(QFileInfo(m_ziel).absolutePath()).isWritable()) {
        m_fehler = QStringLiteral("Der Ordner \"%1\" fehlt oder ist schreibgeschützt.")
                       .arg(QDir::toNativeSeparators(QFileInfo(m_ziel).absolutePath()));
        return false;
    }
    if (m_pdf && m_zwischen.isEmpty()) {
        m_fehler = QStringLiteral("Die Datei \"%1\" kann nicht angelegt werden: %2")
                       .arg(QDir::toNativeSeparators(m_ziel), m_anlegefehler);
        return false;
    }
    if (!m_pdf && !m_drucker->isValid()) {
        m_fehler = QStringLiteral("Der Drucker \"%1\" ist nicht verfügbar.").arg(m_drucker->printerName());
        return false;
    }
    if (!m_maler.begin(m_geraet)) {
        m_fehler =
            m_pdf
                ? QStringLiteral("Die Datei \"%1\" kann nicht geschrieben werden.")
                      .arg(QDir::toNativeSeparators(m_ziel))
                : QStringLiteral("Der Drucker \"%1\" nimmt keinen Auftrag an.").arg(m_drucker->printerName());
        return false;
    }
    m_auftragOffen = true;
    ++m_seiten;
    SeiteEinrichten();
    return true;
}

void Druckercanvas::NeueSeite() {
    if (!m_maler.isActive()) return;
    m_geraet->newPage();
    ++m_seiten;
    SeiteEinrichten();
}

void Druckercanvas::Schliesse() {
    // A file collects every job of the request; Abschliessen() ends it.
    if (m_pdf) return;
    if (m_maler.isActive()) m_maler.end();
    m_auftragOffen = false;
}

bool Druckercanvas::Abschliessen() {
    if (m_maler.isActive() && !m_maler.end()) {
        m_fehler = QStringLiteral("Die Druckausgabe wurde nicht fertig.");
        return false;
    }
    const bool warOffen = m_auftragOffen;
    m_auftragOffen = false;
    if (!m_pdf || !warOffen) return true;
    // The finished file takes the target's place in one step.
    QString grund;
    if (m_zwischen.isEmpty() || !SchliesseZwischendateiAb(m_zwischen, m_ziel, &grund)) {
        m_fehler = QStringLiteral("Die Datei \"%1\" kann nicht geschrieben werden: %2")
                       .arg(QDir::toNativeSeparators(m_ziel), m_zwischen.isEmpty() ? m_anlegefehler : grund);
        return false;
    }
    return true;
}

bool Druckercanvas::KopienSelbst() const {
    return !m_pdf && m_drucker->supportsMultipleCopies();
}

void Druckercanvas::SetzeKopien(int kopien) {
    if (KopienSelbst()) m_drucker->setCopyCount(std::max(1, kopien));
}

int Druckercanvas::GetDeviceCaps(int index) const {
    const int aufloesung = m_aufloesung;
    switch (index) {
    case LOGPIXELSX:
    case LOGPIXELSY:
        return aufloesung;
    case PHYSICALOFFSETX:
    case PHYSICALOFFSETY: {
        if (m_pdf) return 0;
        const QRect druckbar = m_drucker->pageLayout().paintRectPixels(aufloesung);
        return index == PHYSICALOFFSETX ? druckbar.left() : druckbar.top();
    }
    default:
        return PainterCanvas::GetDeviceCaps(index);
    }
}

} // namespace zp
