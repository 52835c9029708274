#pragma once
// frmlinie: the shape dialog. It edits a copy of one shape object; every control writes its field
// and the box PicMusterLinie shows the shape as the page will. The caller hands the result to the
// shape dialog's command on Ok.

#include "dialogs/Farbwahl.h"
#include "model/Klassen.h"

#include <QDialog>

class QButtonGroup;
class QCheckBox;
class QLabel;
class QSlider;
class QTabWidget;

namespace zp {
struct AppState;
class Farbpalette;
class Farbseite;
class Schattenseite;

class FrmLinie : public QDialog {
    Q_OBJECT
public:
    FrmLinie(AppState& s, const ClassLinie& linie, QWidget* eltern = nullptr);

    // The work object AktuelleLinie as the controls have left it.
    [[nodiscard]] const ClassLinie& Werk() const { return m_werk; }
    // The page in front: 1 form, 2 colour, 3 shadow.
    void SeiteWaehlen(int seite);
    [[nodiscard]] QImage Vorschaubild() const { return m_bild; }
    void SetzeFarbdialog(const Farbdialog& dialog);

private:
    QWidget* SeiteForm();
    void Zeigen();
    void Geaendert();
    void Vorschau();
    void PaletteGewaehlt(Farbe farbe);

    AppState& s;
    ClassLinie m_werk;
    QImage m_bild;
    bool m_fuellt = false;

    QTabWidget* m_seiten = nullptr;
    QLabel* m_vorschau = nullptr;
    QButtonGroup* m_formen = nullptr;
    QCheckBox* m_fuellen = nullptr;
    QSlider* m_staerke = nullptr;
    QLabel* m_staerkeWert = nullptr;
    Farbseite* m_farbe = nullptr;
    Schattenseite* m_schatten = nullptr;
    Farbpalette* m_palette = nullptr;
};

// Opens the shape dialog on `linie` at page `seite`: on Ok the edited copy is written back into
// `linie` and true is returned; on Cancel `linie` stays.
bool LinieBearbeiten(QWidget* eltern, AppState& s, ClassLinie& linie, int seite = 1);

} // namespace zp
