#include "document/linepieces.h"

#include <utility>

namespace quenfor {

void LinePieceDecoder::append(const char* data, qsizetype size) {
    m_bytes.append(data, size);
    if (m_bytes.size() <= m_holdLimit)
        return;
    const qsizetype cut = m_codec.decodeCut(m_bytes.constData(), m_bytes.size());
    if (cut <= 0)
        return; // a codec that cannot cut keeps the whole line as bytes
    m_text += m_codec.decode(m_bytes.constData(), cut);
    m_bytes.remove(0, cut);
}

QString LinePieceDecoder::takeHeld(const char* data, qsizetype size) {
    m_bytes.append(data, size);
    QString rest = m_codec.decode(m_bytes.constData(), m_bytes.size());
    m_bytes = QByteArray();
    if (m_text.isEmpty())
        return rest;
    m_text += rest;
    return std::exchange(m_text, QString());
}

} // namespace quenfor
