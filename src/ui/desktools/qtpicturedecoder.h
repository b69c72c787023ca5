#pragma once

#include "desktools/pictureloader.h"

#include <QPixmap>

namespace quenfor {

// Decodes pictures for the viewer's loader with Qt's image readers (and their plugins for tif and
// friends); the picture of the last successful load is kept for showing.
class QtPictureDecoder : public PictureDecoder {
public:
    bool takeClipboardPicture() override;
    bool loadPlain(const QString& path) override;
    std::optional<ReadFailure> readFull(const QString& path) override;

    QPixmap picture() const { return m_picture; }

private:
    QPixmap m_picture;
};

} // namespace quenfor
