// The floor of a label run: a bare Qt program that writes N addresses on 3 x 8 labels of
// 66 x 33.8 mm (A4, 600 dpi) into a PDF with QPdfWriter, three lines of vector text per label and
// nothing else: no settings, no catalogue, no composition. What `zp --pdf` needs beyond this is
// the cost of the program itself.
//
//   zp_pdfboden DATEI.pdf [ADRESSEN]    (default 240)
#include <QGuiApplication>
#include <QPageLayout>
#include <QPageSize>
#include <QPainter>
#include <QPdfWriter>
#include <cstdio>
#include <cstdlib>

int main(int argc, char** argv) {
    if (argc < 2) {
        std::fputs("Aufruf: zp_pdfboden DATEI.pdf [ADRESSEN]\n", stderr);
        return 1;
    }
    if (!std::getenv("QT_QPA_PLATFORM")) setenv("QT_QPA_PLATFORM", "offscreen", 1);
    QGuiApplication app(argc, argv);
    const int adressen = argc > 2 ? std::max(1, std::atoi(argv[2])) : 240;

    QPdfWriter pdf(QString::fromLocal8Bit(argv[1]));
    pdf.setResolution(600);
    pdf.setPageLayout(QPageLayout(QPageSize(QPageSize::A4), QPageLayout::Portrait, QMarginsF()));
    QPainter maler(&pdf);
    QFont schrift(QStringLiteral("Arial"));
    schrift.setPixelSize(100); // 12 pt at 600 dpi
    maler.setFont(schrift);
    const double mm = 600 / 25.4;
    for (int i = 0; i < adressen; ++i) {
        const int platz = i % 24;
        if (i > 0 && platz == 0) pdf.newPage();
        const double x = (7.2 + (platz % 3) * 68.5 + 4) * mm;
        const double y = (13 + (platz / 3) * 33.8 + 4) * mm;
        const int n = i + 1;
        maler.drawText(QPointF(x, y + 100), QStringLiteral("Name %1").arg(n));
        maler.drawText(QPointF(x, y + 220), QStringLiteral("Hauptstraße %1").arg(n));
        maler.drawText(QPointF(x, y + 340), QStringLiteral("%1 Musterstadt").arg(10000 + n));
    }
    return maler.end() ? 0 : 1;
}
