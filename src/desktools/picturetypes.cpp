#include "desktools/picturetypes.h"

#include <array>

using namespace Qt::StringLiterals;

namespace quenfor {

namespace {

struct PictureType {
    QStringView extension;
    PictureKind kind;
    const char* readerFormat;
};

constexpr std::array<PictureType, 15> kTypes{{
    {u".bmp", PictureKind::Bitmap, "bmp"},
    {u".dib", PictureKind::Bitmap, "bmp"},
    {u".rle", PictureKind::Bitmap, "bmp"},
    {u".ico", PictureKind::PlainOnly, "ico"},
    {u".cur", PictureKind::PlainOnly, "cur"},
    {u".emf", PictureKind::PlainOnly, "emf"},
    {u".wmf", PictureKind::PlainOnly, "wmf"},
    {u".gif", PictureKind::FullOnly, "gif"},
    {u".png", PictureKind::FullOnly, "png"},
    {u".tif", PictureKind::FullOnly, "tiff"},
    {u".tiff", PictureKind::FullOnly, "tiff"},
    {u".jpe", PictureKind::FullOnly, "jpeg"},
    {u".jpg", PictureKind::FullOnly, "jpeg"},
    {u".jpeg", PictureKind::FullOnly, "jpeg"},
    {u".jfif", PictureKind::FullOnly, "jpeg"},
}};

const PictureType* typeOf(QStringView name) {
    const QString last4 = name.right(4).toString().toLower();
    const QString last5 = name.right(5).toString().toLower();
    for (const PictureType& type : kTypes) {
        if (type.extension == last4 || type.extension == last5)
            return &type;
    }
    return nullptr;
}

} // namespace

std::optional<PictureKind> pictureKindOf(QStringView name) {
    if (const PictureType* type = typeOf(name))
        return type->kind;
    return std::nullopt;
}

bool isPictureFileName(QStringView name) {
    return typeOf(name) != nullptr;
}

QStringList pictureTypes() {
    QStringList types;
    for (const PictureType& type : kTypes)
        types.append(type.extension.toString());
    return types;
}

QByteArray readerFormatOf(QStringView name) {
    const PictureType* type = typeOf(name);
    return type ? QByteArray(type->readerFormat) : QByteArray();
}

} // namespace quenfor
