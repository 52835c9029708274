#pragma once
// Frame1(5): the gallery of sample business-card designs.

#include "Seitenpanel.h"

class QListWidget;

namespace zp {

class PanelGalerie : public Seitenpanel {
    Q_OBJECT
public:
    explicit PanelGalerie(Panelumgebung u);
    void Laden() override;

private:
    QListWidget* m_list1;
};

} // namespace zp
