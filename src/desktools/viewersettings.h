#pragma once

#include <QString>

namespace quenfor {

// The picture viewer keeps its settings under its own application "vistrel", section "Optionen":
// "Farbe" (the colour word, "standard" at first), "dir1" (the last folder) and "drive1" (its
// drive, "C:" form on Windows); before the first use "C:\" and "C:" on Windows, the home folder
// and its volume elsewhere.
// The window's size when a picture is chosen and after "reset": 10005 x 6525 twips, 15 twips a
// pixel.
inline constexpr int kViewerWidthTwips = 10005;
inline constexpr int kViewerHeightTwips = 6525;
inline constexpr int kTwipsPerPixel = 15;
constexpr int twipsToPixels(int twips) {
    return twips / kTwipsPerPixel;
}

struct PictureViewerSettings {
    QString scheme;
    QString folder;
    QString drive;
};

PictureViewerSettings loadPictureViewerSettings();
// Returns false when the store could not be written.
bool storePictureViewerSettings(const PictureViewerSettings& settings);

} // namespace quenfor
