#pragma once
// A new widget or action under its object name, by which the edition rules and tests find it.

#include <QString>
#include <utility>

namespace zp {

template <typename W, typename... Args> W* Benannt(const QString& name, Args&&... args) {
    auto* w = new W(std::forward<Args>(args)...);
    w->setObjectName(name);
    return w;
}

} // namespace zp
