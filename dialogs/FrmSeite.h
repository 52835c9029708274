#pragma once
// frmSeite, "Seite einrichten": the page, the sheet of labels, the raster and the background,
// edited on the copies SeiteKopie and EtikettKopie with a live preview of the sheet and of the
// card. Ok hands the copies to the document; Abbruch leaves it as it was.

#include "core/Seitenbefehle.h"

#include <QDialog>
#include <QImage>

class QButtonGroup;
class QCheckBox;
class QComboBox;
class QGroupBox;
class QLabel;
class QLineEdit;
class QListWidget;
class QRadioButton;
class QScrollBar;
class QSlider;
class QStackedWidget;
class QTabBar;
class QToolButton;

namespace zp {
struct AppState;
class Oberflaeche;

class FrmSeite : public QDialog {
    Q_OBJECT
public:
    // The tabs, counted from 1 as the menus name them.
    enum Tab { TabFormat = 1, TabDesign = 2, TabKarte = 3, TabRaster = 4 };

    FrmSeite(AppState& s, Oberflaeche& ui, int tab = TabFormat, QWidget* parent = nullptr);

    // The entry of the menus and toolbars: shows the dialog on `tab` and waits until it is closed.
    // The label tab of an edition that hides it opens the format tab, where its group then stands.
    static bool Zeigen(AppState& s, Oberflaeche& ui, int tab, QWidget* parent);

    // The previews as last drawn: the sheet (Picture1) and the card's background (Picture2).
    [[nodiscard]] QImage Bogenbild() const { return m_bogenbild; }
    [[nodiscard]] QImage Kartenbild() const { return m_kartenbild; }
    [[nodiscard]] QTabBar* Tabs() const { return m_tabs; }

public slots:
    void accept() override; // Command3 "Ok"
    void reject() override; // Command1 "Abbruch"

private:
    QWidget* SeiteFormat();
    QWidget* SeiteRaender();
    QWidget* SeiteRaster();
    QGroupBox* GruppeEtiketten();
    QGroupBox* GruppeAbgleich(); // FrmSeiteAbgleich.cpp
    QWidget* SeiteHintergrund(); // FrmSeiteHintergrund.cpp, with its groups:
    QGroupBox* HintergrundartGruppe();
    QGroupBox* FarbenGruppe();
    QGroupBox* MusterGruppe();
    QGroupBox* DesignGruppe();
    void HintergrundLaden();
    void HintergrundVerbinden();
    QListWidget* Bilderreihe(const char* name, int anzahl, int hoehe);
    void FarbeWaehlen(int welche);
    void FarbfelderZeigen();
    void MusterUndDesignsZeigen();
    void EditionAnwenden();
    void BoxenFuellen();
    void KatalogListeFuellen(const QString& suche);
    void BogenNeu();
    void KarteNeu();
    QLineEdit* Box(const char* name, const QString& text = {});
    [[nodiscard]] int Katalogzeile() const;

    AppState& s;
    Oberflaeche& m_ui;
    bool m_fuellen = false;
    QImage m_bogenbild, m_kartenbild;

    QTabBar* m_tabs = nullptr;
    QStackedWidget* m_seiten = nullptr;
    QComboBox* m_papier = nullptr;
    QLineEdit *m_breite = nullptr, *m_hoehe = nullptr, *m_export = nullptr;
    QRadioButton* m_lage[2] = {};
    QLineEdit* m_rand[4] = {}; // TextLinks, TextRechts, TextOben, TextUnten
    QLineEdit *m_rasterX = nullptr, *m_rasterY = nullptr;
    QGroupBox* m_etiketten = nullptr;
    QLineEdit* m_suche = nullptr;
    QComboBox* m_katalog = nullptr;
    QLineEdit* m_karte[KartenfeldAnzahl] = {};
    QLabel* m_kartenLabel[KartenfeldAnzahl] = {};
    QCheckBox* m_kreis = nullptr;
    QLabel* m_picture1 = nullptr;
    // Background group.
    QButtonGroup* m_verlauf = nullptr;
    QCheckBox* m_check6 = nullptr;
    QToolButton* m_farbe[4] = {}; // 1, 2: background colours, 3: design colour
    QLabel* m_bilddatei = nullptr;
    QListWidget* m_muster = nullptr;
    QListWidget* m_design = nullptr;
    QSlider* m_designgroesse = nullptr;
    QScrollBar* m_hscroll1 = nullptr;
    QLabel* m_picture2 = nullptr;
    QWidget* m_formatSeite = nullptr;
    QWidget* m_karteSeite = nullptr;
};

} // namespace zp
