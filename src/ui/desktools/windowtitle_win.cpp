// The top-level windows in their Z order, as the system lists them.
#include "ui/desktools/windowtitle.h"

#include <windows.h>

namespace quenfor {

WindowTitleLookup windowTitleOfProcess(qint64 pid) {
    WindowTitleLookup lookup;
    lookup.desktopTells = true;
    for (HWND window = FindWindowW(nullptr, nullptr); window; window = GetWindow(window, GW_HWNDNEXT)) {
        if (GetParent(window))
            continue;
        DWORD owner = 0;
        GetWindowThreadProcessId(window, &owner);
        if (qint64(owner) != pid)
            continue;
        wchar_t text[256] = {};
        const int length = GetWindowTextW(window, text, 256);
        lookup.title = QString::fromWCharArray(text, qMax(length, 0));
        break;
    }
    return lookup;
}

} // namespace quenfor
