#pragma once
// frmKalenderdesign, "Kalenderdesign": the seven text roles and seven shape roles of the calendar
// template, each with a preview drawn as the page draws it and a button "ändern" that opens the
// property dialog of that frame.

#include "compose/Vorschaubild.h"
#include "model/Klassen.h"

#include <QDialog>
#include <QRectF>
#include <QSizeF>
#include <array>
#include <functional>

class QLabel;
class QPushButton;
class QStackedWidget;
class QTabBar;

namespace zp {
struct AppState;

class FrmKalenderdesign : public QDialog {
    Q_OBJECT
public:
    // Opens the property dialog of frame `rahmen` (a text frame 1 to 7 or a shape frame 32 to 38)
    // and returns whether it was closed with Ok.
    using Eigenschaften = std::function<bool(AppState&, int rahmen)>;

    // Without `schriftDialog` or `linienDialog` the buttons "ändern" of that tab stay disabled.
    FrmKalenderdesign(AppState& s, Eigenschaften schriftDialog, Eigenschaften linienDialog,
                      QWidget* parent = nullptr);

    // Command1(index) and Command2(index): the role's frame chosen, its dialog opened, and after
    // Ok the previews drawn again from the design.
    void Command1Klick(int index);
    void Command2Klick(int index);

private:
    QWidget* Schriftseite();
    QWidget* Rahmenseite();
    void KopienNehmen();
    void VorschauenZeichnen();
    // What the page draws under a text whose shape role is `form`.
    [[nodiscard]] std::vector<Grundform> Grund(int form) const;

    AppState& s;
    Eigenschaften m_schriftDialog, m_linienDialog;
    QTabBar* m_tabs = nullptr;
    QStackedWidget* m_seiten = nullptr;
    std::array<QLabel*, 7> m_picture1{}, m_picture2{};
    std::array<QPushButton*, 7> m_command1{};
    std::array<QPushButton*, 8> m_command2{}; // 1 to 7
    // Copies of the roles' objects that the previews draw; taken again after each Ok.
    std::array<ClassSchrift, 7> m_texte{};
    std::array<ClassLinie, 7> m_formen{};
    std::array<QRectF, 7> m_textrahmen{};  // the text frames on the page, in which the texts are set
    std::array<QSizeF, 7> m_formgroesse{}; // the shape frames' sizes on the page
    std::array<bool, 7> m_textDa{}, m_formDa{};
};

} // namespace zp
