#pragma once
// frmBild, "Bilder und Grafiken": edits one picture object through a work copy. Every change is
// shown at once in the preview Lead1, which runs the picture pipeline on a copy of the picture
// reduced to the preview's size. Ok hands the copy to the document; Abbruch leaves it.

#include "core/Bildbefehle.h"
#include "render/Bildvorschau.h"

#include <QDialog>
#include <QImage>

class QCheckBox;
class QLabel;
class QLineEdit;
class QListWidget;
class QSlider;
class QStackedWidget;
class QTabBar;

namespace zp {
struct AppState;
class Oberflaeche;

class FrmBild : public QDialog {
    Q_OBJECT
public:
    // Opens on the current picture `BildNummer` and frame `RahmenNummer`. `rahmenNeu`: the frame was
    // inserted just before, so that Abbruch takes it out again.
    FrmBild(AppState& s, Oberflaeche& ui, bool rahmenNeu, QWidget* parent = nullptr);

    // The entry of the window and of the insertion: shows the dialog for the current picture frame
    // and waits until it is closed. Returns whether Ok was chosen and the picture kept.
    static bool Bearbeiten(AppState& s, Oberflaeche& ui, bool rahmenNeu, QWidget* parent);

    [[nodiscard]] const ClassBild& Kopie() const { return m_bild; }
    [[nodiscard]] const ClassRahmen& Rahmenkopie() const { return m_rahmen; }
    // The preview as last drawn.
    [[nodiscard]] QImage Vorschau() const { return m_vorschaubild; }
    // A file chosen in the file list or the file dialog: loads, reshapes the frame, redraws.
    void DateiGewaehlt(const QString& pfad);

    static constexpr int Vorschaubreite = 320;
    static constexpr int Vorschauhoehe = 240;

public slots:
    void accept() override; // Command3 "Ok"
    void reject() override; // Command1 "Abbruch"

private:
    QWidget* SeiteDatei();
    QWidget* SeiteKorrekturen();
    QWidget* SeiteEffekte();
    QWidget* SeiteDrehen();
    QSlider* Regler(const QString& name, int von, int bis, int wert);
    void OrdnerZeigen(const QString& ordner);
    // Return in `Dir1` (told when the path doesn't exist) or leaving it (passed over then).
    void PfadGetippt(bool melden);
    void WinkelUebernehmen(); // `Text1` left or Return in it
    void VorschauNeu();

    AppState& s;
    Oberflaeche& m_ui;
    bool m_rahmenNeu;
    ClassBild m_bild;
    ClassRahmen m_rahmen;
    Vorschauvorlage m_vorlage;
    QImage m_vorschaubild;
    bool m_fuellen = false; // controls are being filled: their handlers keep quiet

    QTabBar* m_tabs = nullptr;
    QStackedWidget* m_seiten = nullptr;
    QLabel* m_lead1 = nullptr;
    QLineEdit* m_dir1 = nullptr;
    QListWidget* m_file1 = nullptr;
    QCheckBox* m_check1 = nullptr;
    QCheckBox* m_check2 = nullptr;
    QSlider* m_slider1[BildreglerAnzahl] = {};
    QSlider* m_slider2 = nullptr;
    QSlider* m_slider3 = nullptr;
    QLineEdit* m_text1 = nullptr;
};

} // namespace zp
