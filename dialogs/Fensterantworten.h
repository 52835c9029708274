#pragma once
// The main window's answers to the core: its questions and messages in dialog boxes, its file and
// colour choices in Qt's dialogs, the property dialogs of the current frame, and every change of
// state passed on to the window as one notice.

#include "core/state/Oberflaeche.h"

#include <QColor>
#include <functional>
#include <optional>

class QUrl;
class QWidget;

namespace zp {
struct AppState;

class Fensterantworten : public Oberflaeche {
public:
    explicit Fensterantworten(AppState& s);

    bool Frage(const QString& text, const QString& titel) override;
    void Meldung(const QString& text, const QString& titel, const QString& detail = {}) override;
    QString DateiWaehlen(const QString& titel, const QString& filter, bool speichern) override;
    // A file to open with a filter already in Qt's form.
    virtual QString QtDateiWaehlen(const QString& titel, const QString& qtFilter);
    // A file to save, with a suggested name (relative to the program folder, or absolute).
    QString SpeicherDateiWaehlen(const QString& titel, const QString& filter,
                                 const QString& vorschlag) override;
    // A web page, a mail or the help file in the desktop's program; false when there is none.
    virtual bool AdresseOeffnen(const QUrl& adresse);
    // The colour dialog: the chosen colour, or nothing when cancelled.
    virtual std::optional<QColor> FarbeWaehlen(const QColor& start);

    void Geaendert(unsigned was) override;
    void StatusDatei(const QString& text) override;
    void Statusmeldung(const QString& text) override;
    void FokusFeldbox(int i) override;
    void FormatleisteAktualisieren() override;

    // The property dialogs on the current frame, modal over the window; the deletion of a frame.
    void SchriftdialogZeigen(int seite) override;
    void LiniendialogZeigen(int seite) override;
    void BilddialogZeigen() override;
    void PositionsdialogZeigen() override;
    void RahmenLoeschen() override;

    // The window the dialogs belong to, and where it takes the notices; set by the window.
    QWidget* fenster = nullptr;
    std::function<void(unsigned)> geaendert;
    std::function<void(const QString&)> statusDatei;
    std::function<void(const QString&)> statusmeldung;
    std::function<void(int)> fokus;
    std::function<void()> formatleiste;

protected:
    AppState& s;
};

} // namespace zp
