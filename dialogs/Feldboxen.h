#pragma once
// The input boxes Text1(von..bis), each behind its caption Label1: typing edits the box's text
// object, focus makes its frame the current one, and leaving it draws what is still pending.

#include <QObject>

class QFormLayout;
class QLabel;
class QLineEdit;

namespace zp {
struct AppState;
class Fensterantworten;

class Feldboxen : public QObject {
    Q_OBJECT
public:
    Feldboxen(AppState& s, Fensterantworten& ui, QFormLayout* form, int von, int bis, QObject* parent);

    [[nodiscard]] QLineEdit* Text1(int i) const { return Gueltig(i) ? m_text[i - m_von] : nullptr; }
    // Keyboard focus to box i if it is on show. `nachKlick`: a click on the page chose the frame,
    // and the focus event must leave that choice (the pending mark).
    bool Fokussieren(int i, bool nachKlick);
    // Captions by the edition, and the boxes' texts from the state (`ausTextobjekten`: from the text
    // objects where they exist, else, and always for the record fields, from the panel's copy).
    void Beschriften();
    void Zeigen(bool ausTextobjekten);

protected:
    bool eventFilter(QObject* objekt, QEvent* e) override;

private:
    [[nodiscard]] bool Gueltig(int i) const { return i >= m_von && i <= m_bis; }
    void Getippt(int i, const QString& text);

    AppState& s;
    Fensterantworten& ui;
    int m_von, m_bis;
    QLineEdit* m_text[20] = {};
    QLabel* m_label[20] = {};
    bool m_markeOffen = false; // a click's focus is on its way: its focus event selects nothing
};

} // namespace zp
