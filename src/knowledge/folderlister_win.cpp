#include "knowledge/folderlister.h"

namespace quenfor {

// The Qt listing asks Windows for the entries with their attributes in one go already.
const FolderLister& systemFolderLister() {
    static const QtFolderLister lister;
    return lister;
}

} // namespace quenfor
