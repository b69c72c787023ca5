#pragma once

#include <QCollator>
#include <QLocale>
#include <QStringView>

#include <array>

namespace quenfor {

// The order of a sorted list box: ascending, case-insensitive, in the user's collation, so "_"
// and other punctuation come before digits and digits before letters.
//
// Configuration files are nearly all ASCII, and asking the collation library for every pair of
// a million lines is slow. The collator therefore learns once how the locale orders the 128 ASCII
// characters, checks that pairs of them order the same way (locales with contractions such as a
// Czech "ch" fail the check and are always asked), and then compares ASCII lines by a table.
// Lines with other characters are always compared by the library.
class LineCollator {
public:
    explicit LineCollator(const QLocale& locale = QLocale());

    // Learning a locale's table takes a moment: the collators are kept, one per locale and thread.
    static const LineCollator& forLocale(const QLocale& locale);

    // < 0, 0 or > 0, like QCollator::compare.
    int compare(QStringView a, QStringView b) const;
    bool hasAsciiTable() const { return m_asciiTable; }

    static bool isAscii(QStringView text);
    // The first sixteen ASCII weights of a line, packed for quick comparisons, and how many of
    // them decide the order on their own: all for an ASCII line (a shorter line is padded with
    // zeros, which sort first), fewer when a non-ASCII character follows, since it may combine
    // with the letters before it.
    struct SortPrefix {
        quint64 high = 0;
        quint64 low = 0;
        qint32 rest = 0; // where the text behind the packed weights starts (ASCII lines only)
        quint8 decisive = 0;
        bool ascii = false; // the whole line, not just the prefix
    };
    static constexpr int kPrefixWidth = 16;
    SortPrefix sortPrefix(QStringView text) const;
    // Compares two lines whose prefixes were taken by sortPrefix (requires the ASCII table). Most
    // pairs are decided by the packed weights alone, without touching the text.
    int comparePrefixed(const SortPrefix& pa, QStringView a, const SortPrefix& pb, QStringView b) const {
        if (pa.decisive == kPrefixWidth && pb.decisive == kPrefixWidth) {
            if (pa.high != pb.high)
                return pa.high < pb.high ? -1 : 1;
            if (pa.low != pb.low)
                return pa.low < pb.low ? -1 : 1;
            // Equal weights so far: an ASCII pair goes on behind them. A line without any weight
            // (empty, or only ignorable characters) needs the whole comparison's rule for empty lines.
            if (pa.ascii && pb.ascii && pa.high != 0)
                return compareAsciiFrom(a, pa.rest, b, pb.rest);
        }
        return compareUndecided(pa, a, pb, b);
    }
    int compareAscii(QStringView a, QStringView b) const;
    const QCollator& collator() const { return m_collator; }
    // A copy with its own collation library handle, for sorting on a second thread.
    LineCollator forAnotherThread() const;

private:
    bool buildAsciiTable();
    int compareUndecided(const SortPrefix& pa, QStringView a, const SortPrefix& pb, QStringView b) const;
    int compareAsciiFrom(QStringView a, qsizetype i, QStringView b, qsizetype j) const;

    QCollator m_collator;
    std::array<quint8, 128> m_weight{}; // 0: ignored by the collation (most control characters)
    bool m_asciiTable = false;
};

} // namespace quenfor
