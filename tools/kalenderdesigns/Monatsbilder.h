#pragma once
// Twelve landscape pictures, one per month, painted from seasonal palettes.

#include <QImage>

namespace zp::werkzeug {
[[nodiscard]] QImage Monatsbild(int monat, QSize groesse);
}
