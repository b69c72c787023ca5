#include "common/drives.h"

#include <windows.h>

#include <array>

namespace quenfor {

QStringList logicalDrives() {
    // Room for all 26 drives as "X:\" plus their NULs; the list ends with an empty entry.
    std::array<wchar_t, 512> buffer{};
    const DWORD length = GetLogicalDriveStringsW(static_cast<DWORD>(buffer.size()), buffer.data());
    QStringList roots;
    if (length == 0 || length > buffer.size())
        return roots;
    const wchar_t* entry = buffer.data();
    while (*entry != L'\0') {
        const QString root = QString::fromWCharArray(entry);
        roots.append(root);
        entry += root.size() + 1;
    }
    return roots;
}

} // namespace quenfor
