#pragma once
// The document commands' table of functions, bound to what this build has.

#include "core/Dokumentdienste.h"

namespace zp {
[[nodiscard]] Dokumentdienste ProgrammDienste();
} // namespace zp
