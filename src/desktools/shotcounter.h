#pragma once

#include <QtGlobal>

namespace quenfor {

// The shot number of the screenshot window: 16 bits, 0 when the window opens, counted up before
// every shot, so the first shot is number 1. After 65535 it starts again at 0 instead of failing.
class ShotCounter {
public:
    quint16 value() const { return m_value; }
    void setValue(quint16 value) { m_value = value; }
    quint16 next() { return ++m_value; }

private:
    quint16 m_value = 0;
};

} // namespace quenfor
