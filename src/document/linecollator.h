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
        int decisive = 0;
        bool ascii = false; // the whole line, not just the prefix
    };
    SortPrefix sortPrefix(QStringView text) const;
    // Compares two lines whose prefixes were taken by sortPrefix (requires the ASCII table).
    int comparePrefixed(const SortPrefix& pa, QStringView a, const SortPrefix& pb, QStringView b) const;
    int compareAscii(QStringView a, QStringView b) const;
    const QCollator& collator() const { return m_collator; }

private:
    bool buildAsciiTable();

    QCollator m_collator;
    std::array<quint8, 128> m_weight{}; // 0: ignored by the collation (most control characters)
    bool m_asciiTable = false;
};

} // namespace quenfor
