#include "output/Druckerliste.h"

#include <QPrinterInfo>

namespace zp {

QStringList Druckerliste() {
    QStringList liste{kPdfDatei};
    QStringList warteschlangen = QPrinterInfo::availablePrinterNames();
    warteschlangen.sort(Qt::CaseInsensitive);
    liste += warteschlangen;
    return liste;
}

QString Standarddrucker() {
    const QString name = QPrinterInfo::defaultPrinterName();
    return name.isEmpty() ? kPdfDatei : name;
}

QString WaehleDrucker(const QString& gewuenscht, const QStringList& liste, QString& meldung) {
    meldung.clear();
    const QString name = gewuenscht.trimmed().isEmpty() ? Standarddrucker() : gewuenscht.trimmed();
    if (liste.contains(name)) return name;
    if (liste.size() <= 1) {
        meldung = QStringLiteral("Es ist kein Drucker eingerichtet. Sie können in eine PDF-Datei drucken "
                                 "(\"%1\").")
                      .arg(kPdfDatei);
    } else {
        QStringList andere = liste;
        meldung = QStringLiteral("Der Drucker \"%1\" ist nicht eingerichtet. Zur Wahl stehen: %2.")
                      .arg(name, andere.join(QStringLiteral(", ")));
    }
    return {};
}

} // namespace zp
