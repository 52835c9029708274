#pragma once
// Creating document objects with their defaults.

#include <QString>

namespace zp {

struct AppState;

// Makes frame n (growing `Rahmenliste` by one when n is just above its bound), raises RahmenAnzahl.
void ErzeugeRahmen(AppState& s, int n, const QString& typ, double objektnummer);
// Make object n of its list with the defaults, replacing what stands in the slot.
void ErzeugeSchrift(AppState& s, int n);
void ErzeugeBild(AppState& s, int n);
void ErzeugeLinie(AppState& s, int n);

} // namespace zp
