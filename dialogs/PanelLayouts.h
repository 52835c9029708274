#pragma once
// Frame1(3): the five layouts that arrange the card's texts anew.

#include "Seitenpanel.h"

namespace zp {

class PanelLayouts : public Seitenpanel {
    Q_OBJECT
public:
    explicit PanelLayouts(Panelumgebung u);
};

} // namespace zp
