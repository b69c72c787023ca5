#pragma once

#include <QString>

#include <optional>

namespace quenfor {

// The title of a process's main window: the first top-level window without an owner that
// belongs to the process. Windows and X11 desktops tell it; elsewhere (Wayland, no display)
// `desktopTells` is false and the window shows kNoWindowTitles instead.
struct WindowTitleLookup {
    bool desktopTells = false;
    std::optional<QString> title; // none when the process has no such window
};

WindowTitleLookup windowTitleOfProcess(qint64 pid);

inline constexpr char16_t kNoWindowTitles[] = u"Dieser Desktop nennt die Fenstertitel anderer Programme nicht.";

} // namespace quenfor
