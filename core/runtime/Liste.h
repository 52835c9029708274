#pragma once
// Arrays as the program's state keeps them: numbered from 1 in use, index 0 present and empty,
// grown and shrunk with their contents kept. Every access is bounds-checked.

#include <QString>
#include <algorithm>
#include <stdexcept>
#include <string>
#include <vector>

namespace zp {

// One dimension, indexes 0..Obergrenze().
template <typename T> class Liste {
public:
    Liste() : m_items(1) {}
    explicit Liste(int obergrenze) : m_items(static_cast<size_t>(obergrenze < 0 ? 0 : obergrenze) + 1) {}

    [[nodiscard]] int Obergrenze() const { return static_cast<int>(m_items.size()) - 1; }
    // ReDim Preserve: new slots take T's defaults, slots above the new bound are released.
    void RedimPreserve(int obergrenze) {
        m_items.resize(static_cast<size_t>(obergrenze < 0 ? 0 : obergrenze) + 1);
    }
    // ReDim without Preserve: every slot back to T's defaults.
    void Redim(int obergrenze) {
        m_items.assign(static_cast<size_t>(obergrenze < 0 ? 0 : obergrenze) + 1, T{});
    }

    T& operator()(int i) { return m_items.at(checked(i)); }
    const T& operator()(int i) const { return m_items.at(checked(i)); }
    T& operator()(double i) { return (*this)(static_cast<int>(i)); }
    const T& operator()(double i) const { return (*this)(static_cast<int>(i)); }
    [[nodiscard]] bool Gueltig(int i) const { return i >= 0 && i <= Obergrenze(); }
    // All entries 0..Obergrenze() in order, for searches that walk the whole list.
    [[nodiscard]] const std::vector<T>& Eintraege() const { return m_items; }

private:
    size_t checked(int i) const {
        if (i < 0 || i > Obergrenze())
            throw std::out_of_range("Index " + std::to_string(i) + " außerhalb 0.." +
                                    std::to_string(Obergrenze()));
        return static_cast<size_t>(i);
    }
    std::vector<T> m_items;
};

// Two dimensions, indexes 0..Obergrenze1() by 0..Obergrenze2(), (i, j) as the runtime indexes.
template <typename T> class Tabelle {
public:
    Tabelle() { Redim(0, 0); }
    Tabelle(int o1, int o2, const T& leer = T{}) { Redim(o1, o2, leer); }

    [[nodiscard]] int Obergrenze1() const { return m_o1; }
    [[nodiscard]] int Obergrenze2() const { return m_o2; }

    void Redim(int o1, int o2, const T& leer = T{}) {
        m_o1 = o1 < 0 ? 0 : o1;
        m_o2 = o2 < 0 ? 0 : o2;
        m_items.assign(static_cast<size_t>(m_o1 + 1) * static_cast<size_t>(m_o2 + 1), leer);
    }
    // ReDim Preserve: contents kept where both indexes still exist.
    void RedimPreserve(int o1, int o2, const T& leer = T{}) {
        Tabelle neu(o1, o2, leer);
        for (int i = 0; i <= std::min(m_o1, neu.m_o1); ++i)
            for (int j = 0; j <= std::min(m_o2, neu.m_o2); ++j)
                neu(i, j) = (*this)(i, j);
        *this = std::move(neu);
    }
    void Fuelle(const T& wert) { std::fill(m_items.begin(), m_items.end(), wert); }

    T& operator()(int i, int j) { return m_items.at(index(i, j)); }
    const T& operator()(int i, int j) const { return m_items.at(index(i, j)); }
    [[nodiscard]] bool Gueltig(int i, int j) const { return i >= 0 && i <= m_o1 && j >= 0 && j <= m_o2; }

private:
    size_t index(int i, int j) const {
        if (!Gueltig(i, j))
            throw std::out_of_range("Index (" + std::to_string(i) + ", " + std::to_string(j) + ") außerhalb");
        return static_cast<size_t>(i) * static_cast<size_t>(m_o2 + 1) + static_cast<size_t>(j);
    }
    int m_o1 = 0, m_o2 = 0;
    std::vector<T> m_items;
};

} // namespace zp
