#pragma once

#include <QByteArray>
#include <QByteArrayView>
#include <QString>
#include <QStringView>

namespace quenfor {

// File names on Linux are bytes. Shares written by old Windows machines hold names in Latin-1
// ("Geh\xE4use.prt.1") that are no valid UTF-8; decoding them the usual way replaces the byte, so
// two names fall together and a delete would hit another file. These keep every byte: valid UTF-8
// is decoded as such, and each other byte b becomes the lone character U+DC00 + b, which valid
// UTF-8 can never produce and which encodes back to exactly that byte.
QString decodeFileName(QByteArrayView bytes);
QByteArray encodeFileName(QStringView name);

// The name for a person to read: each kept byte shown as the Latin-1 character it most likely
// was ("Gehäuse.prt.1").
QString readableFileName(QStringView name);

} // namespace quenfor
