#pragma once
// frmInfo: name, version and edition of the program.

#include <QDialog>

namespace zp {
struct AppState;

class FrmInfo : public QDialog {
    Q_OBJECT
public:
    explicit FrmInfo(const AppState& s, QWidget* parent = nullptr);
};

} // namespace zp
