#include "Farbwahl.h"

#include <QAbstractButton>
#include <QButtonGroup>
#include <QColorDialog>
#include <QGridLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QPainter>
#include <QPixmap>
#include <QPushButton>
#include <QToolButton>
#include <algorithm>

namespace zp {

Farbdialog StandardFarbdialog() {
    return [](const QColor& start, QWidget* eltern) -> std::optional<QColor> {
        const QColor c = QColorDialog::getColor(start, eltern, QStringLiteral("Farbe wählen"));
        if (!c.isValid()) return std::nullopt;
        return c;
    };
}

QColor AlsQColor(Farbe farbe) {
    if (farbe < 0) return QColor(Qt::white);
    return QColor(farbe & 0xFF, (farbe >> 8) & 0xFF, (farbe >> 16) & 0xFF);
}

Farbe AlsFarbe(const QColor& farbe) {
    return farbe.red() | (farbe.green() << 8) | (farbe.blue() << 16);
}

void FarbknopfZeigen(QAbstractButton* knopf, Farbe farbe, const QString& bedeutung) {
    QPixmap bild(knopf->iconSize().isValid() ? knopf->iconSize() : QSize(16, 16));
    bild.fill(AlsQColor(farbe));
    QPainter p(&bild);
    p.setPen(Qt::gray);
    p.drawRect(bild.rect().adjusted(0, 0, -1, -1));
    p.end();
    knopf->setIcon(bild);
    const QString wert = QStringLiteral("#%1").arg(AlsQColor(farbe).name().mid(1).toUpper());
    knopf->setAccessibleName(bedeutung.isEmpty() ? wert : bedeutung + QStringLiteral(" ") + wert);
    knopf->setToolTip(knopf->accessibleName());
}

Farbpalette::Farbpalette(const Liste<Farbe>& farbtabelle, QWidget* eltern) : QWidget(eltern) {
    setObjectName(QStringLiteral("ImageFarbe"));
    setAccessibleName(QStringLiteral("Farbpalette"));
    auto* raster = new QGridLayout(this);
    raster->setSpacing(2);
    raster->setContentsMargins(0, 0, 0, 0);
    for (int i = 1; i <= 48 && i <= farbtabelle.Obergrenze(); ++i) {
        auto* zelle = new QToolButton(this);
        zelle->setObjectName(QStringLiteral("ImageFarbe_%1").arg(i));
        zelle->setIconSize(QSize(16, 16));
        zelle->setAutoRaise(true);
        const Farbe farbe = farbtabelle(i);
        FarbknopfZeigen(zelle, farbe, QStringLiteral("Farbe"));
        // A hue per column, its six shades from dark to light down the column.
        raster->addWidget(zelle, (i - 1) % 6, (i - 1) / 6);
        connect(zelle, &QToolButton::clicked, this, [this, farbe] { emit gewaehlt(farbe); });
        zelle->setFocusPolicy(i == 1 ? Qt::StrongFocus : Qt::ClickFocus);
        zelle->installEventFilter(this);
        m_zellen.push_back(zelle);
    }
}

bool Farbpalette::eventFilter(QObject* objekt, QEvent* e) {
    if (e->type() != QEvent::KeyPress) return QWidget::eventFilter(objekt, e);
    const auto it = std::find(m_zellen.begin(), m_zellen.end(), objekt);
    if (it == m_zellen.end()) return false;
    const int i = static_cast<int>(it - m_zellen.begin()); // 0-based: column i / 6, row i % 6
    int ziel = i;
    switch (static_cast<QKeyEvent*>(e)->key()) {
    case Qt::Key_Left:
        ziel = i - 6;
        break;
    case Qt::Key_Right:
        ziel = i + 6;
        break;
    case Qt::Key_Up:
        ziel = i % 6 > 0 ? i - 1 : i;
        break;
    case Qt::Key_Down:
        ziel = i % 6 < 5 ? i + 1 : i;
        break;
    default:
        return false;
    }
    if (ziel < 0 || ziel >= static_cast<int>(m_zellen.size()) || ziel == i) return true;
    // The cell with the focus is the palette's Tab stop from now on.
    m_zellen[i]->setFocusPolicy(Qt::ClickFocus);
    m_zellen[ziel]->setFocusPolicy(Qt::StrongFocus);
    m_zellen[ziel]->setFocus(Qt::TabFocusReason);
    return true;
}

Farbpaar::Farbpaar(const QString& titel1, const QString& titel2, const char* mehr1, const char* mehr2,
                   QWidget* eltern)
    : QWidget(eltern), m_titel{titel1, titel2} {
    auto* raster = new QGridLayout(this);
    raster->setContentsMargins(0, 0, 0, 0);
    m_gruppe = new QButtonGroup(this);
    const char* mehr[2] = {mehr1, mehr2};
    for (int k = 0; k < 2; ++k) {
        m_box[k] = new QToolButton(this);
        m_box[k]->setObjectName(QString::fromLatin1(mehr[k]) + QStringLiteral("Farbe"));
        m_box[k]->setCheckable(true);
        m_box[k]->setIconSize(QSize(36, 18));
        m_gruppe->addButton(m_box[k], k + 1);
        auto* titel = new QLabel(m_titel[k], this);
        titel->setBuddy(m_box[k]);
        auto* knopf = new QPushButton(QStringLiteral("Mehr..."), this);
        knopf->setObjectName(QString::fromLatin1(mehr[k]));
        knopf->setAutoDefault(false);
        raster->addWidget(m_box[k], k, 0);
        raster->addWidget(titel, k, 1);
        raster->addWidget(knopf, k, 2);
        connect(knopf, &QPushButton::clicked, this, [this, k] { Mehr(k + 1); });
        FarbknopfZeigen(m_box[k], 0, m_titel[k]);
    }
    raster->setColumnStretch(1, 1);
    m_box[0]->setChecked(true);
}

void Farbpaar::Setze(int nummer, Farbe farbe) {
    if (nummer != 1 && nummer != 2) return;
    m_farbe[nummer - 1] = farbe;
    FarbknopfZeigen(m_box[nummer - 1], farbe, m_titel[nummer - 1]);
}

int Farbpaar::Ziel() const {
    return m_gruppe->checkedId() == 2 ? 2 : 1;
}

void Farbpaar::PaletteGewaehlt(Farbe farbe) {
    Aendere(Ziel(), farbe);
}

void Farbpaar::Mehr(int nummer) {
    m_box[nummer - 1]->setChecked(true);
    if (!farbdialog) return;
    const std::optional<QColor> c = farbdialog(AlsQColor(m_farbe[nummer - 1]), this);
    if (c && c->isValid()) Aendere(nummer, AlsFarbe(*c));
}

void Farbpaar::Aendere(int nummer, Farbe farbe) {
    Setze(nummer, farbe);
    emit geaendert(nummer, farbe);
}

} // namespace zp
