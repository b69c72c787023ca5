#pragma once

// Splits a fuzzer's input into the pieces a harness needs: a few choice bytes in front, then
// texts, so one input drives several parameters and the fuzzer can still mutate each of them.
#include <QByteArray>
#include <QByteArrayView>
#include <QString>
#include <QStringList>

#include <cstddef>
#include <cstdint>

namespace quenfor::fuzz {

class FuzzInput {
public:
    FuzzInput(const uint8_t* data, size_t size)
        : m_data(reinterpret_cast<const char*>(data)), m_size(qsizetype(size)) {}

    // The next byte, or 0 at the end.
    uint8_t byte() { return m_pos < m_size ? uint8_t(m_data[m_pos++]) : 0; }

    // Bytes up to the next NUL (consumed) or the end: lets the fuzzer vary the length of a piece.
    QByteArrayView piece() {
        const qsizetype start = m_pos;
        while (m_pos < m_size && m_data[m_pos] != '\0')
            ++m_pos;
        const QByteArrayView result(m_data + start, m_pos - start);
        if (m_pos < m_size)
            ++m_pos;
        return result;
    }

    QByteArrayView rest() {
        const QByteArrayView result(m_data + m_pos, m_size - m_pos);
        m_pos = m_size;
        return result;
    }

    static QString text(QByteArrayView bytes) { return QString::fromUtf8(bytes); }

    // The rest as lines split at LF, at most maxLines of them, so text files serve as seeds.
    QStringList lines(qsizetype maxLines) {
        const QByteArrayView bytes = rest();
        QStringList result;
        qsizetype start = 0;
        for (qsizetype i = 0; i <= bytes.size() && result.size() < maxLines; ++i) {
            if (i == bytes.size() || bytes[i] == '\n') {
                result.append(text(bytes.sliced(start, i - start)));
                start = i + 1;
            }
        }
        return result;
    }

private:
    const char* m_data;
    qsizetype m_size;
    qsizetype m_pos = 0;
};

// Stops the harness with a message the fuzzer records with the input that caused it.
[[noreturn]] void fail(const char* what);

} // namespace quenfor::fuzz
