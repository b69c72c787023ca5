// Sorting any lines by category gives exactly what the literal nested loops give.
#include "fuzzinput.h"

#include "../knowledge/categorysortoracle.h"
#include "knowledge/categorysort.h"

using namespace quenfor;

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    fuzz::FuzzInput input(data, size);
    const QStringList lines = input.lines(48);
    const CategoryTable& table = CategoryTable::builtIn();
    if (sortByCategory(lines, table) != testing::literalCategorySort(lines, table))
        fuzz::fail("the category sort differs from the literal nested loops");
    return 0;
}
