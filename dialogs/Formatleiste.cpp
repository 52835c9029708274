#include "Formatleiste.h"
#include "Formatsymbole.h"

#include "core/Formatbefehle.h"
#include "core/state/AppState.h"
#include "core/state/Oberflaeche.h"

#include <QAction>
#include <QActionGroup>
#include <QComboBox>
#include <QDoubleValidator>
#include <QIcon>
#include <QLineEdit>

namespace zp {

namespace {
struct Knopfdaten {
    const char* schluessel;
    const char* titel;  // caption, tool tip and accessible name
    const char* symbol; // freedesktop icon name, tried before the bar's own picture
    bool umschalter;
    const char* taste = ""; // shortcut, as the German word processors have it
};

// In the order of the bar; an empty key is a separator.
constexpr Knopfdaten kKnoepfe[] = {
    {"fett", "Fett", "format-text-bold", true, "Ctrl+Shift+F"},
    {"italic", "Kursiv", "format-text-italic", true, "Ctrl+Shift+K"},
    {"underline", "Unterstrichen", "format-text-underline", true, "Ctrl+Shift+U"},
    {"", "", "", false},
    {"links", "Linksbündig", "format-justify-left", true},
    {"center", "Zentriert", "format-justify-center", true},
    {"rechts", "Rechtsbündig", "format-justify-right", true},
    {"", "", "", false},
    {"textoben", "Oben ausrichten", "", true},
    {"textcenter", "Mittig ausrichten", "", true},
    {"textunten", "Unten ausrichten", "", true},
    {"", "", "", false},
    {"farbe", "Farbe", "format-text-color", false},
    {"schatten", "Schatten", "", false},
    {"winkel", "Winkel", "object-rotate-left", false},
    {"", "", "", false},
    {"positionieren", "Positionieren", "transform-move", false},
    {"löschen", "Löschen", "edit-delete", false},
    {"gesperrt", "Verankert (gesperrt)", "object-locked", true},
};

} // namespace

Formatleiste::Formatleiste(AppState& zustand, Oberflaeche& oberflaeche, QWidget* eltern)
    : QToolBar(QStringLiteral("Format"), eltern), s(zustand), ui(oberflaeche) {
    setObjectName(QStringLiteral("Toolbar3"));
    setMovable(false);
    setIconSize(QSize(20, 20));

    m_combo1 = new QComboBox(this);
    m_combo1->setObjectName(QStringLiteral("Combo1"));
    m_combo1->setAccessibleName(QStringLiteral("Schriftart"));
    m_combo1->setMinimumContentsLength(14);
    m_combo1->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    m_combo3 = new QComboBox(this);
    m_combo3->setObjectName(QStringLiteral("Combo3"));
    m_combo3->setAccessibleName(QStringLiteral("Schriftgröße"));
    m_combo3->setEditable(true);
    m_combo3->setInsertPolicy(QComboBox::NoInsert);
    m_combo3->setMinimumContentsLength(4);
    auto* groessen = new QDoubleValidator(0, 9999, 1, m_combo3);
    groessen->setNotation(QDoubleValidator::StandardNotation);
    m_combo3->setValidator(groessen);
    addWidget(m_combo1);
    addWidget(m_combo3);
    addSeparator();

    auto* waagerecht = new QActionGroup(this);
    auto* senkrecht = new QActionGroup(this);
    for (const Knopfdaten& k : kKnoepfe) {
        const QString schluessel = QString::fromUtf8(k.schluessel);
        if (schluessel.isEmpty()) {
            addSeparator();
            continue;
        }
        auto* a = new QAction(Formatsymbol(schluessel, QString::fromUtf8(k.symbol)),
                              QString::fromUtf8(k.titel), this);
        a->setObjectName(QStringLiteral("Toolbar3_") + schluessel);
        a->setToolTip(QString::fromUtf8(k.titel));
        a->setCheckable(k.umschalter);
        if (*k.taste) {
            a->setShortcut(QKeySequence(QString::fromLatin1(k.taste)));
            a->setToolTip(QStringLiteral("%1 (%2)").arg(a->toolTip(),
                                                        a->shortcut().toString(QKeySequence::NativeText)));
        }
        if (schluessel == u"links" || schluessel == u"center" || schluessel == u"rechts")
            waagerecht->addAction(a);
        if (schluessel.startsWith(u"text")) senkrecht->addAction(a);
        addAction(a);
        m_knoepfe.insert(schluessel, a);
        connect(a, &QAction::triggered, this, [this, schluessel] { Geklickt(schluessel); });
    }
    connect(m_combo1, &QComboBox::textActivated, this, [this](const QString& name) {
        if (SchriftartSetzen(s, ui, name)) Aktualisieren();
    });
    // A size picked from the list, or typed and confirmed with Enter.
    connect(m_combo3, &QComboBox::textActivated, this, [this] { GroesseGewaehlt(); });
    connect(m_combo3->lineEdit(), &QLineEdit::returnPressed, this, [this] { GroesseGewaehlt(); });
    ListenFuellen();
    Aktualisieren();
}

void Formatleiste::ListenFuellen() {
    const uint8_t sperre = s.LadeSperre;
    s.LadeSperre = 255;
    m_combo1->clear();
    m_fremd.clear();
    for (int i = 1; i <= s.Schriftenliste.Obergrenze(); ++i) {
        const QString& name = s.Schriftenliste(i);
        if (name == QLatin1String("-1")) break;
        if (!name.isEmpty() && s.SchriftSkalierbar(i) != 0) m_combo1->addItem(name);
    }
    m_combo3->clear();
    for (int g = 8; g <= 72; g += 2)
        m_combo3->addItem(QString::number(g));
    s.LadeSperre = sperre;
}

void Formatleiste::Aktualisieren() {
    const Formatzustand z = UpdateFormatBar(s);
    const uint8_t sperre = s.LadeSperre;
    s.LadeSperre = 255;
    m_combo1->setEnabled(z.Schrift);
    m_combo3->setEnabled(z.Schrift);
    // Position, deletion and anchor serve every frame; colour and shadow texts and shapes; the
    // rest only texts. Without a current frame there is nothing to format.
    for (auto it = m_knoepfe.cbegin(); it != m_knoepfe.cend(); ++it) {
        const QString& k = it.key();
        bool an = z.Schrift;
        if (k == u"farbe" || k == u"schatten") an = z.Schrift || z.Linie;
        if (k == u"positionieren" || k == QStringLiteral("löschen") || k == u"gesperrt") an = z.Rahmen;
        it.value()->setEnabled(an);
    }
    m_knoepfe.value(QStringLiteral("fett"))->setChecked(z.Fett);
    m_knoepfe.value(QStringLiteral("italic"))->setChecked(z.Kursiv);
    m_knoepfe.value(QStringLiteral("underline"))->setChecked(z.Unterstrichen);
    static const char* const waagerecht[3] = {"links", "center", "rechts"};
    static const char* const senkrecht[3] = {"textoben", "textcenter", "textunten"};
    for (int i = 0; i < 3; ++i) {
        m_knoepfe.value(QString::fromLatin1(waagerecht[i]))->setChecked(z.Schrift && z.AusrichtungH == i);
        m_knoepfe.value(QString::fromLatin1(senkrecht[i]))->setChecked(z.Schrift && z.AusrichtungV == i);
    }
    m_knoepfe.value(QStringLiteral("gesperrt"))->setChecked(z.Gesperrt);
    if (!m_fremd.isEmpty() && m_fremd != z.Schriftart) {
        m_combo1->removeItem(m_combo1->findText(m_fremd));
        m_fremd.clear();
    }
    if (z.Schrift) {
        // A font the list doesn't offer is shown as it stands, so that the bar tells the truth.
        // It leaves the list again when another text is current.
        if (m_combo1->findText(z.Schriftart) < 0) {
            m_combo1->addItem(z.Schriftart);
            m_fremd = z.Schriftart;
        }
        m_combo1->setCurrentText(z.Schriftart);
        m_combo3->setCurrentText(QString::number(z.Groesse));
    }
    s.LadeSperre = sperre;
}

void Formatleiste::Geklickt(const QString& schluessel) {
    Toolbar3Knopf(s, ui, schluessel);
    Aktualisieren();
}

void Formatleiste::GroesseGewaehlt() {
    const Formatzustand z = UpdateFormatBar(s);
    if (!z.Schrift || (m_combo3->currentText() == QString::number(z.Groesse))) return;
    SchriftgroesseSetzen(s, ui, m_combo3->currentText());
    Aktualisieren();
}

} // namespace zp
