#pragma once
// frmMsg: the program's own message box, with a title, a text, a detail line for what a user
// needs to find the fault (file, line), and one or two buttons.

#include <QDialog>

namespace zp {

class FrmMsg : public QDialog {
    Q_OBJECT
public:
    FrmMsg(const QString& titel, const QString& text, const QString& detail, const QString& knopf1,
           const QString& knopf2 = {}, QWidget* parent = nullptr);

    // Shows a message with "OK".
    static void Zeigen(QWidget* parent, const QString& text, const QString& titel,
                       const QString& detail = {});
    // A question with "Ja" and "Nein"; true for the first button.
    static bool Fragen(QWidget* parent, const QString& text, const QString& titel);
};

} // namespace zp
