#pragma once
// frmPosition: the box of the current frame in numbers. Each box is kept on the page as soon as
// it loses the focus; the caller hands the boxes to the position dialog's command on Ok.

#include "core/Positionsdialog.h"
#include "model/SeiteEtikett.h"

#include <QDialog>

class QCheckBox;
class QLineEdit;

namespace zp {

class FrmPosition : public QDialog {
    Q_OBJECT
public:
    FrmPosition(const Positionsfelder& felder, const ClassSeite& seite, QWidget* eltern = nullptr);

    // The boxes as the user left them.
    [[nodiscard]] Positionsfelder Felder() const;

protected:
    bool eventFilter(QObject* objekt, QEvent* e) override;

private:
    void Reparieren(int nummer);

    ClassSeite m_seite;
    QLineEdit* m_text[5] = {};
    QCheckBox* m_check1 = nullptr;
    QCheckBox* m_check2 = nullptr;
};

} // namespace zp
