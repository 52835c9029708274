#include "Fensterantworten.h"
#include "Eigenschaftsdialoge.h"
#include "FrmBild.h"
#include "FrmMsg.h"

#include "core/Dokumentbefehle.h"
#include "core/Rahmenbefehle.h"
#include "core/state/AppState.h"

#include <QColorDialog>
#include <QDesktopServices>
#include <QDir>
#include <QFileDialog>
#include <QMessageBox>
#include <QUrl>

namespace zp {

Fensterantworten::Fensterantworten(AppState& state) : s(state) {}

bool Fensterantworten::Frage(const QString& text, const QString& titel) {
    QMessageBox box(QMessageBox::Question, titel, text, QMessageBox::Yes | QMessageBox::No, fenster);
    // Questions that delete or replace what the user made: a stray Enter keeps it.
    box.setDefaultButton(QMessageBox::No);
    return box.exec() == QMessageBox::Yes;
}

void Fensterantworten::Meldung(const QString& text, const QString& titel, const QString& detail) {
    FrmMsg::Zeigen(fenster, text, titel, detail);
}

QString Fensterantworten::DateiWaehlen(const QString& titel, const QString& filter, bool speichern) {
    const QString qt = QtDateifilter(filter);
    if (!speichern) return QFileDialog::getOpenFileName(fenster, titel, s.Programmpfad, qt);
    QString gewaehlt;
    const QString name = QFileDialog::getSaveFileName(fenster, titel, s.Programmpfad, qt, &gewaehlt);
    return MitFilterendung(name, gewaehlt);
}

QString Fensterantworten::QtDateiWaehlen(const QString& titel, const QString& qtFilter) {
    return QFileDialog::getOpenFileName(fenster, titel, s.Programmpfad, qtFilter);
}

QString Fensterantworten::SpeicherDateiWaehlen(const QString& titel, const QString& filter,
                                               const QString& vorschlag) {
    QString gewaehlt;
    const QString name = QFileDialog::getSaveFileName(
        fenster, titel, QDir(s.Programmpfad).filePath(vorschlag), QtDateifilter(filter), &gewaehlt);
    return MitFilterendung(name, gewaehlt);
}

bool Fensterantworten::AdresseOeffnen(const QUrl& adresse) {
    return QDesktopServices::openUrl(adresse);
}

std::optional<QColor> Fensterantworten::FarbeWaehlen(const QColor& start) {
    const QColor c = QColorDialog::getColor(start, fenster, QStringLiteral("Farbe"));
    if (!c.isValid()) return std::nullopt;
    return c;
}

void Fensterantworten::Geaendert(unsigned was) {
    if (geaendert) geaendert(was);
}

void Fensterantworten::StatusDatei(const QString& text) {
    if (statusDatei) statusDatei(text);
}

void Fensterantworten::Statusmeldung(const QString& text) {
    if (statusmeldung) statusmeldung(text);
}

void Fensterantworten::FokusFeldbox(int i) {
    if (fokus) fokus(i);
}

void Fensterantworten::FormatleisteAktualisieren() {
    if (formatleiste) formatleiste();
}

void Fensterantworten::SchriftdialogZeigen(int seite) {
    SchriftdialogAusfuehren(fenster, s, *this, seite);
}

void Fensterantworten::LiniendialogZeigen(int seite) {
    LiniendialogAusfuehren(fenster, s, *this, seite);
}

void Fensterantworten::BilddialogZeigen() {
    // While the new frame's box was just drawn, Abbruch takes the frame out again.
    FrmBild::Bearbeiten(s, *this, s.Auswahlmodus != 0, fenster);
}

void Fensterantworten::PositionsdialogZeigen() {
    PositionsdialogAusfuehren(fenster, s, *this);
}

void Fensterantworten::RahmenLoeschen() {
    DeleteFrame(s, *this);
}

} // namespace zp
