#include "render/Bildwerk.h"

#include "core/state/AppState.h"

namespace zp {

Bildwerk& BildwerkVon(AppState& s) {
    if (!s.Bilder) s.Bilder = std::make_shared<Bildwerk>();
    return *s.Bilder;
}

} // namespace zp
