#include "document/linecollator.h"

#include <QString>
#include <QStringList>

#include <algorithm>
#include <bit>
#include <cstring>
#include <limits>
#include <map>
#include <memory>
#include <numeric>
#include <vector>

using namespace Qt::StringLiterals;

namespace quenfor {

namespace {

// The C locale would compare code points, putting "_" behind the digits and capitals; users of
// such a system still expect the order of a list box, which is that of the root collation.
QLocale collationLocale(const QLocale& locale) {
    if (locale.language() == QLocale::C)
        return QLocale(QLocale::English, QLocale::UnitedStates);
    return locale;
}

QCollator listBoxCollator(const QLocale& locale) {
    QCollator collator(locale);
    collator.setCaseSensitivity(Qt::CaseInsensitive);
    collator.setNumericMode(false);
    collator.setIgnorePunctuation(false);
    return collator;
}

} // namespace

LineCollator::LineCollator(const QLocale& locale) : m_collator(listBoxCollator(collationLocale(locale))) {
    m_asciiTable = buildAsciiTable();
}

LineCollator LineCollator::forAnotherThread() const {
    // A copied QCollator shares its library handle; the table is kept, it is only read.
    LineCollator copy(*this);
    copy.m_collator = listBoxCollator(m_collator.locale());
    return copy;
}

const LineCollator& LineCollator::forLocale(const QLocale& locale) {
    thread_local std::map<QString, std::unique_ptr<LineCollator>> collators;
    auto& slot = collators[locale.name()];
    if (!slot)
        slot = std::make_unique<LineCollator>(locale);
    return *slot;
}

bool LineCollator::isAscii(QStringView text) {
    for (QChar c : text) {
        if (c.unicode() >= 0x80)
            return false;
    }
    return true;
}

bool LineCollator::buildAsciiTable() {
    QStringList single;
    for (int c = 0; c < 128; ++c)
        single.append(QString(QChar(c)));
    std::vector<int> order(128);
    std::iota(order.begin(), order.end(), 0);
    std::stable_sort(order.begin(), order.end(),
                     [&](int a, int b) { return m_collator.compare(single[a], single[b]) < 0; });

    // Qt compares an empty string by length alone, so ignorable characters are found behind a letter.
    const QString letter = u"a"_s;
    int weight = 0;
    for (size_t i = 0; i < order.size(); ++i) {
        const int c = order[i];
        if (m_collator.compare(letter + single[c], letter) == 0) {
            m_weight[c] = 0;
            continue;
        }
        if (weight == 0 || m_collator.compare(single[order[i - 1]], single[c]) != 0)
            ++weight;
        m_weight[c] = quint8(weight);
    }

    // Every pair of characters must order by the table as the collation orders it; sorting all
    // pairs by the table and checking neighbours proves that.
    QStringList pairs;
    pairs.reserve(128 * 128);
    for (int a = 0; a < 128; ++a) {
        for (int b = 0; b < 128; ++b)
            pairs.append(QString(QChar(a)) + QChar(b));
    }
    auto tableCompare = [&](QStringView x, QStringView y) { return compareAscii(x, y); };
    std::stable_sort(pairs.begin(), pairs.end(),
                     [&](const QString& x, const QString& y) { return tableCompare(x, y) < 0; });
    for (qsizetype i = 1; i < pairs.size(); ++i) {
        const int byTable = tableCompare(pairs[i - 1], pairs[i]);
        const int byCollation = m_collator.compare(pairs[i - 1], pairs[i]);
        if ((byTable == 0) != (byCollation == 0) || (byTable < 0 && byCollation > 0))
            return false;
    }
    return true;
}

int LineCollator::compareAscii(QStringView a, QStringView b) const {
    if (a.isEmpty() || b.isEmpty()) // as QCollator does: an empty line before every other line
        return int(!a.isEmpty()) - int(!b.isEmpty());
    return compareAsciiFrom(a, 0, b, 0);
}

namespace {

// How many UTF-16 units from a[i] and b[j] on are the same, four at a time where they can be.
qsizetype sameUnitsFrom(QStringView a, qsizetype i, QStringView b, qsizetype j) {
    const qsizetype limit = qMin(a.size() - i, b.size() - j);
    const char16_t* pa = a.utf16() + i;
    const char16_t* pb = b.utf16() + j;
    qsizetype n = 0;
    for (; n + 4 <= limit; n += 4) {
        quint64 wa;
        quint64 wb;
        std::memcpy(&wa, pa + n, sizeof wa);
        std::memcpy(&wb, pb + n, sizeof wb);
        if (wa != wb)
            break;
    }
    while (n < limit && pa[n] == pb[n])
        ++n;
    return n;
}

} // namespace

int LineCollator::compareAsciiFrom(QStringView a, qsizetype i, QStringView b, qsizetype j) const {
    for (;;) {
        // Equal characters weigh the same, ignorable or not, so a common run is passed at once:
        // duplicate lines and lines with the same option name are common in configuration files.
        const qsizetype same = sameUnitsFrom(a, i, b, j);
        i += same;
        j += same;
        while (i < a.size() && m_weight[a[i].unicode()] == 0)
            ++i;
        while (j < b.size() && m_weight[b[j].unicode()] == 0)
            ++j;
        if (i == a.size() || j == b.size())
            return (i == a.size() ? 0 : 1) - (j == b.size() ? 0 : 1);
        const int wa = m_weight[a[i].unicode()];
        const int wb = m_weight[b[j].unicode()];
        if (wa != wb)
            return wa - wb;
        ++i;
        ++j;
    }
}

LineCollator::SortPrefix LineCollator::sortPrefix(QStringView text) const {
    constexpr int kCombiningReach = 2; // weights before a non-ASCII character that it may change
    SortPrefix prefix;
    int taken = 0;
    qsizetype i = 0;
    for (; i < text.size() && taken < kPrefixWidth; ++i) {
        const char16_t c = text[i].unicode();
        if (c >= 0x80) {
            prefix.decisive = quint8(qMax(0, taken - kCombiningReach));
            return prefix;
        }
        const quint8 w = m_weight[c];
        if (w == 0)
            continue;
        if (taken < 8)
            prefix.high |= quint64(w) << (8 * (7 - taken));
        else
            prefix.low |= quint64(w) << (8 * (15 - taken));
        ++taken;
    }
    const bool nonAsciiFollows = i < text.size() && text[i].unicode() >= 0x80;
    prefix.decisive = quint8(nonAsciiFollows ? kPrefixWidth - kCombiningReach : kPrefixWidth);
    // A line too long for the offset is left to the whole comparison.
    prefix.ascii = i <= std::numeric_limits<qint32>::max() && isAscii(text.mid(i));
    prefix.rest = prefix.ascii ? qint32(i) : 0;
    return prefix;
}

int LineCollator::compareUndecided(const SortPrefix& pa, QStringView a, const SortPrefix& pb, QStringView b) const {
    if (pa.high != pb.high || pa.low != pb.low) {
        const int firstDifference =
            pa.high != pb.high ? std::countl_zero(pa.high ^ pb.high) / 8 : 8 + std::countl_zero(pa.low ^ pb.low) / 8;
        if (firstDifference < qMin(pa.decisive, pb.decisive)) {
            if (pa.high != pb.high)
                return pa.high < pb.high ? -1 : 1;
            return pa.low < pb.low ? -1 : 1;
        }
    }
    if (pa.ascii && pb.ascii)
        return compareAscii(a, b);
    return m_collator.compare(a, b);
}

int LineCollator::compare(QStringView a, QStringView b) const {
    if (m_asciiTable && isAscii(a) && isAscii(b))
        return compareAscii(a, b);
    return m_collator.compare(a, b);
}

} // namespace quenfor
