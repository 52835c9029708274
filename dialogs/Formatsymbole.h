#pragma once
// The pictures of the format bar's keys, drawn here so that the bar looks the same on every
// desktop; a desktop icon theme that knows a key's icon is asked first.

#include <QIcon>

namespace zp {

// The picture of Toolbar3's key `schluessel` ("fett", "links", "farbe", ...); `thema` is the
// freedesktop icon name tried first.
[[nodiscard]] QIcon Formatsymbol(const QString& schluessel, const QString& thema);

} // namespace zp
