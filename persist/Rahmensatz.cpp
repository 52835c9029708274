#include "persist/Rahmensatz.h"

#include "core/runtime/TextDatei.h"
#include "model/Klassen.h"

#include <cmath>

namespace zp {

ClassRahmen LeseRahmensatz(ZeilenLeser& in, double version) {
    ClassRahmen f;
    f.Breite = in.LeseDouble();
    f.Höhe = in.LeseDouble();
    f.Objektnummer = in.LeseDouble();
    f.Objekttyp = in.ReadLine();
    f.Sichtbar = in.LeseBool();
    f.Proportional = in.LeseInt16();
    f.Verankert = in.LeseInt16();
    f.X = in.LeseDouble();
    f.Y = in.LeseDouble();
    f.z = in.LeseInt16();
    if (version > LetzteVersionOhneBilddaten) f.bilddaten = in.LeseInt16();
    return f;
}

void SchreibeRahmensatz(ZeilenSchreiber& out, const ClassRahmen& r, double version) {
    out.WriteDouble(std::floor(r.Breite));
    out.WriteDouble(std::floor(r.Höhe));
    out.WriteDouble(r.Objektnummer);
    out.WriteLine(r.Objekttyp);
    out.WriteBool(r.Sichtbar != 0);
    out.WriteLine(r.Proportional);
    out.WriteLine(r.Verankert);
    out.WriteDouble(std::floor(r.X));
    out.WriteDouble(std::floor(r.Y));
    out.WriteLine(r.z);
    if (version > LetzteVersionOhneBilddaten) out.WriteLine(r.bilddaten);
}

} // namespace zp
