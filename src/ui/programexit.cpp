#include "ui/programexit.h"

#include <QApplication>

namespace quenfor {

void endWholeProgram() {
    QApplication::closeAllWindows();
}

} // namespace quenfor
