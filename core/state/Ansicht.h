#pragma once
// The view toggles of the menus (grid, help areas, frame outlines, snap, whole millimetres).

namespace zp {

// A toggle flag: 0 and -1 swap, as the bitwise complement of its integer value.
inline void Umschalten(float& flag) {
    flag = static_cast<float>(~static_cast<int>(flag));
}

} // namespace zp
