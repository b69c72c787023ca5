#pragma once

#include <QPixmap>

namespace quenfor {

// The Erklär-Bär, drawn rather than shipped as artwork: the bear, the bear being fed, and the
// brain that the knowledge button shows.
enum class BearPose { Explaining, Feeding, Brain };
QPixmap bearPicture(BearPose pose, int size = 64);

} // namespace quenfor
