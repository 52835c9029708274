#pragma once
// The page handed to the word processor: an OpenDocument text with the page as a picture and
// room below it for the letter's text.

#include <QImage>
#include <QString>
#include <functional>
#include <memory>

class QIODevice;
class QTextDocument;

namespace zp {
struct AppState;
class Oberflaeche;

// Empty paragraphs between the picture and the first line of text.
inline constexpr int kLeerzeilenUnterDemBild = 14;

// The document: the picture `breiteMm` wide (at most the text column), 14 empty paragraphs, then
// "Texteingabe".
[[nodiscard]] std::unique_ptr<QTextDocument> Worddokument(const QImage& seite, double breiteMm);
// The document as an OpenDocument text into `ziel`. False when writing failed.
[[nodiscard]] bool SchreibeWorddokument(const QImage& seite, double breiteMm, QIODevice& ziel);

// A new file name in the documents folder: "ZP-Seite.odt", numbered when taken.
[[nodiscard]] QString NeuerDokumentpfad();

// Draws the page for export (the export bitmap with ExportAktiv set).
using Exportbild = std::function<QImage(AppState&)>;

// mnuWord: the page drawn into the export bitmap, made opaque as a bitmap file would hold it, and
// put into an OpenDocument text at `ziel` (empty: a new file in the documents folder), written
// atomically; no file of the temporary folder is used. With `oeffnen` the desktop's application for the
// document opens it. Returns the document's path, empty on failure (the user has had a message).
QString mnuWord(AppState& s, Oberflaeche& o, const Exportbild& exportbild, const QString& ziel, bool oeffnen);

} // namespace zp
