#include "document/linecollator.h"

#include <QString>
#include <QStringList>

#include <algorithm>
#include <bit>
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

} // namespace

LineCollator::LineCollator(const QLocale& locale) : m_collator(collationLocale(locale)) {
    m_collator.setCaseSensitivity(Qt::CaseInsensitive);
    m_collator.setNumericMode(false);
    m_collator.setIgnorePunctuation(false);
    m_asciiTable = buildAsciiTable();
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
    qsizetype i = 0;
    qsizetype j = 0;
    for (;;) {
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
    constexpr int kWidth = 16;
    constexpr int kCombiningReach = 2; // weights before a non-ASCII character that it may change
    SortPrefix prefix;
    int taken = 0;
    qsizetype i = 0;
    for (; i < text.size() && taken < kWidth; ++i) {
        const char16_t c = text[i].unicode();
        if (c >= 0x80) {
            prefix.decisive = qMax(0, taken - kCombiningReach);
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
    prefix.decisive = nonAsciiFollows ? kWidth - kCombiningReach : kWidth;
    prefix.ascii = isAscii(text.mid(i));
    return prefix;
}

int LineCollator::comparePrefixed(const SortPrefix& pa, QStringView a, const SortPrefix& pb, QStringView b) const {
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
