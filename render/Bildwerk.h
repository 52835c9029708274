#pragma once
// The imaging controls of the program and the picture cache, held by the application state
// (`AppState::Bilder`) and made on first use.

#include "render/Bildcache.h"
#include "render/Lead.h"

namespace zp {

struct AppState;
class Oberflaeche;

class Bildwerk {
public:
    zp::Lead Lead;         // the page's working control
    zp::Lead Lead1;        // the picture dialog's preview
    zp::Lead Lead2;        // the bitmap export surface
    zp::Lead LeadKalender; // the calendar's pictures
    Bildcache Cache;
    // Where a picture that cannot be loaded is reported; none: the failure is passed over.
    Oberflaeche* Meldungen = nullptr;
};

Bildwerk& BildwerkVon(AppState& s);

} // namespace zp
