#pragma once
// What each edition does to the main window at load: menu entries hidden, shown or recaptioned,
// toolbars and side panels, the labels of the input boxes. Kept as data so the window applies
// it in one loop and a test reads it without a window.

#include <QString>
#include <optional>
#include <vector>

namespace zp {
struct AppState;

enum class Edition { Kalender, Visitenkarte, Briefkopf, Etikett, CDHuelle, Keine };

// The edition of the state's flags, in the order the load handler tests them.
[[nodiscard]] Edition AktuelleEdition(const AppState& s);

// One control's setting: visibility and caption where the edition sets them; unset means the
// window keeps what it was built with.
struct Steuerelementregel {
    QString name;
    std::optional<bool> sichtbar;
    std::optional<QString> titel;
};

// The menu entries, toolbars and panel labels of the edition, by objectName.
[[nodiscard]] std::vector<Steuerelementregel> Editionsregeln(Edition e);

// The side panels Frame1(1) ... Frame1(9) that the edition shows at start, and the one in front.
struct Panelwahl {
    std::vector<int> sichtbar;
    int vorne = 0;
};
[[nodiscard]] Panelwahl StartPanels(Edition e);

// The caption of label Label1(i) beside the input box Text1(i).
[[nodiscard]] QString Eingabebeschriftung(Edition e, int i);

} // namespace zp
