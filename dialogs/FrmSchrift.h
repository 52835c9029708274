#pragma once
// frmSchrift: the text dialog. It edits a copy of one text object; every control writes its field
// and the preview box shows the text as the page will. The caller hands the result to the text
// dialog's command on Ok.

#include "dialogs/Farbwahl.h"
#include "model/Klassen.h"

#include <QDialog>

class QButtonGroup;
class QCheckBox;
class QComboBox;
class QLabel;
class QLineEdit;
class QSlider;
class QTabWidget;

namespace zp {
struct AppState;
class Farbpalette;
class Farbseite;
class Schattenseite;

class FrmSchrift : public QDialog {
    Q_OBJECT
public:
    // `schrift` is copied; the document isn't touched by the dialog.
    FrmSchrift(AppState& s, const ClassSchrift& schrift, QWidget* eltern = nullptr);

    // The work object AktuelleSchrift as the controls have left it, and the text of its box.
    [[nodiscard]] const ClassSchrift& Werk() const { return m_werk; }
    [[nodiscard]] QString Schrifttext() const;
    // The page in front: 1 font, 2 colour, 3 shadow, 4 angle and spacing.
    void SeiteWaehlen(int seite);
    // The preview as last drawn.
    [[nodiscard]] QImage Vorschaubild() const { return m_bild; }
    // The colour dialog behind the "Mehr..." keys.
    void SetzeFarbdialog(const Farbdialog& dialog);

private:
    QWidget* SeiteSchrift();
    QWidget* SeiteWinkel();
    void Zeigen();
    void Geaendert();
    void Vorschau();
    void PaletteGewaehlt(Farbe farbe);

    AppState& s;
    ClassSchrift m_werk;
    QImage m_bild;
    bool m_fuellt = false; // the controls are being filled: their events write nothing

    QTabWidget* m_seiten = nullptr;
    QLabel* m_vorschau = nullptr;
    QComboBox* m_combo1 = nullptr;
    QComboBox* m_combo2 = nullptr;
    QComboBox* m_combo3 = nullptr;
    QLineEdit* m_text = nullptr;
    QCheckBox* m_sichtbar = nullptr;
    QButtonGroup* m_ausH = nullptr;
    QButtonGroup* m_ausV = nullptr;
    QSlider* m_sliderAngle = nullptr;
    QLineEdit* m_angle = nullptr;
    QSlider* m_sliderSpace = nullptr;
    QLineEdit* m_space = nullptr;
    Farbseite* m_farbe = nullptr;
    Schattenseite* m_schatten = nullptr;
    Farbpalette* m_palette = nullptr;
};

// Opens the text dialog on `schrift` at page `seite`: on Ok the edited copy, with the text of its
// box, is written back into `schrift` and true is returned; on Cancel `schrift` stays. For dialogs
// that keep text objects of their own, such as the calendar's design.
bool SchriftBearbeiten(QWidget* eltern, AppState& s, ClassSchrift& schrift, int seite = 1);

} // namespace zp
