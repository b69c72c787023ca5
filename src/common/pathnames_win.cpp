#include "common/pathnames.h"

#include <windows.h>

#include <string>

namespace quenfor {

namespace {

// Both API calls share one shape: ask for the needed length, then fill a buffer of that size.
QString convertedPath(const QString& path, DWORD(WINAPI* convert)(LPCWSTR, LPWSTR, DWORD)) {
    const std::wstring source = path.toStdWString();
    const DWORD needed = convert(source.c_str(), nullptr, 0);
    if (needed == 0)
        return {};
    std::wstring target(needed, L'\0');
    const DWORD written = convert(source.c_str(), target.data(), needed);
    if (written == 0 || written >= needed)
        return {};
    target.resize(written);
    return QString::fromStdWString(target);
}

} // namespace

QString shortPathName(const QString& path) {
    return convertedPath(path, &GetShortPathNameW);
}

QString longPathName(const QString& path) {
    return convertedPath(path, &GetLongPathNameW);
}

bool systemKeepsShortNames() {
    return true;
}

} // namespace quenfor
