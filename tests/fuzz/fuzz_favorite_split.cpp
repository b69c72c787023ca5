// Taking any entry line apart as a favourite line: the parts are pieces of the line, and a line
// that is no favourite line comes back unchanged.
#include "fuzzinput.h"

#include "knowledge/favorites.h"

using namespace quenfor;

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    fuzz::FuzzInput input(data, size);
    const QString line = fuzz::FuzzInput::text(input.rest());
    const FavoriteParts parts = takeFavoriteApart(line);
    if (!parts.isFavorite) {
        if (parts.entryLine != line || !parts.path.isEmpty() || !parts.name.isEmpty())
            fuzz::fail("a line that is no favourite line was changed or taken apart");
        return 0;
    }
    if (!line.startsWith(parts.entryLine))
        fuzz::fail("the entry line is not the line with at most a blank less");
    if (!parts.entryLine.contains(parts.path) || !parts.entryLine.endsWith(parts.name))
        fuzz::fail("path or name are not pieces of the line");
    const QString rebuilt = favoriteLine(parts.path, parts.name);
    if (rebuilt != rebuilt.toLower())
        fuzz::fail("a built favourite line is not in lower case");
    return 0;
}
