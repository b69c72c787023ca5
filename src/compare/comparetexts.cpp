#include "compare/comparetexts.h"

#include "common/textslice.h"
#include "lint/linttexts.h"

#include <QFileInfo>

#include <limits>

using namespace Qt::StringLiterals;

namespace quenfor {

namespace {

constexpr qsizetype kWhole = std::numeric_limits<qsizetype>::max();

void appendShownSlice(QString& out, QStringView text) {
    // Nearly every value is plain text: one append instead of one per character. The test runs
    // over the whole text without an early exit, which the compiler turns into vector code.
    bool control = false;
    for (const QChar c : text)
        control |= c.unicode() < 0x20 || c.unicode() == 0x7f;
    if (control)
        appendShownText(out, text, kWhole);
    else
        out += text;
}

void appendShown(QString& out, QStringView text, const TextDrain& drain = {}) {
    if (drain.flush) {
        while (text.size() > drain.slice) {
            const qsizetype end = sliceEnd(text, drain.slice);
            appendShownSlice(out, text.first(end));
            drain.flush(out);
            text = text.sliced(end);
        }
    }
    appendShownSlice(out, text);
}

// A line number without a QString of its own: the output holds hundreds of thousands of them.
void appendNumber(QString& out, int number) {
    char16_t digits[12];
    int at = 12;
    auto rest = unsigned(number);
    do {
        digits[--at] = char16_t(u'0' + rest % 10);
        rest /= 10;
    } while (rest > 0);
    out += QStringView(digits + at, 12 - at);
}

void appendPlace(QString& out, const QString& file, int line) {
    appendShown(out, file);
    out += u':';
    appendNumber(out, line);
}

void appendTitle(QString& out, const EffectiveSetting& s, const TextDrain& drain = {}) {
    if (s.kind == EntryKind::Mapkey)
        out += u"mapkey "_s;
    appendShown(out, s.name, drain);
}

// "bell yes  (config.pro:12)"
void appendValueAt(QString& out, const SettingPlace& p, const QStringList& files, const TextDrain& drain) {
    appendShown(out, p.value, drain);
    out += u"  ("_s;
    appendPlace(out, files.value(p.file), p.line);
    out += u')';
}

void appendTsvRow(QString& out, const EffectiveSetting& s, const SettingPlace& p, const QStringList& files,
                  QStringView state, const TextDrain& drain) {
    appendTitle(out, s, drain);
    out += u'\t';
    appendShown(out, p.value, drain);
    out += u'\t';
    appendShown(out, files.value(p.file));
    out += u'\t';
    appendNumber(out, p.line);
    out += u'\t';
    out += state;
    out += u'\n';
}

QString fileNameOf(const std::vector<ConfigSource>& sources, int file) {
    return QFileInfo(sources.at(size_t(file)).path).fileName();
}

// "\"bell no\" (config.sup, Zeile 3)"
QString quotedSetting(const EffectiveSetting& s, const SettingPlace& p, const std::vector<ConfigSource>& sources) {
    QString text = u"\""_s;
    appendTitle(text, s);
    text += u' ';
    appendShownText(text, p.value);
    text += u"\" (%1, Zeile %2)"_s.arg(fileNameOf(sources, p.file)).arg(p.line);
    return text;
}

} // namespace

QString settingTitle(EntryKind kind, const QString& name) {
    return kind == EntryKind::Mapkey ? u"mapkey "_s + name : name;
}

void appendEffectiveText(QString& out, const EffectiveSetting& s, const QStringList& files, const TextDrain& drain) {
    appendTitle(out, s, drain);
    if (s.collects) {
        out += u" (sammelt alle Werte)\n"_s;
        for (const SettingPlace& p : s.inEffect) {
            out += u"    "_s;
            appendValueAt(out, p, files, drain);
            out += u'\n';
        }
    } else {
        out += u' ';
        appendValueAt(out, s.inEffect.front(), files, drain);
        if (s.locked)
            out += u" gesperrt"_s;
        out += u'\n';
        for (const SettingPlace& p : s.overridden) {
            out += u"    überschreibt: "_s;
            appendValueAt(out, p, files, drain);
            out += u'\n';
        }
    }
    for (const SettingPlace& p : s.refused) {
        out += u"    gesperrt durch config.sup: "_s;
        appendValueAt(out, p, files, drain);
        out += u'\n';
    }
}

void appendEffectiveTsv(QString& out, const EffectiveSetting& s, const QStringList& files, const TextDrain& drain) {
    for (const SettingPlace& p : s.overridden)
        appendTsvRow(out, s, p, files, u"overridden", drain);
    for (const SettingPlace& p : s.inEffect)
        appendTsvRow(out, s, p, files, s.locked ? u"locked" : u"effective", drain);
    for (const SettingPlace& p : s.refused)
        appendTsvRow(out, s, p, files, u"refused", drain);
}

QString changeText(DiffChange change) {
    switch (change) {
    case DiffChange::Added:
        return u"hinzugefügt"_s;
    case DiffChange::Removed:
        return u"entfernt"_s;
    case DiffChange::Changed:
        break;
    }
    return u"geändert"_s;
}

void appendDiffText(QString& out, const DiffEntry& d, const QString& fileA, const QString& fileB,
                    const TextDrain& drain) {
    out += d.change == DiffChange::Added ? u'+' : d.change == DiffChange::Removed ? u'-' : u'~';
    out += u' ';
    appendShown(out, settingTitle(d.kind, d.name), drain);
    out += u": "_s;
    if (d.change != DiffChange::Added)
        appendShown(out, d.oldValue, drain);
    if (d.change == DiffChange::Changed)
        out += u" → "_s;
    if (d.change != DiffChange::Removed)
        appendShown(out, d.newValue, drain);
    out += u"  ("_s;
    if (d.lineA > 0)
        appendPlace(out, fileA, d.lineA);
    if (d.change == DiffChange::Changed)
        out += u" → "_s;
    if (d.lineB > 0)
        appendPlace(out, fileB, d.lineB);
    out += u")\n"_s;
}

void appendDiffTsv(QString& out, const DiffEntry& d, const TextDrain& drain) {
    out += d.change == DiffChange::Added ? u"added"_s : d.change == DiffChange::Removed ? u"removed"_s : u"changed"_s;
    out += d.kind == EntryKind::Mapkey ? u"\tmapkey\t"_s : u"\toption\t"_s;
    appendShown(out, d.name, drain);
    out += u'\t';
    appendShown(out, d.oldValue, drain);
    out += u'\t';
    appendShown(out, d.newValue, drain);
    out += u'\t';
    if (d.lineA > 0)
        appendNumber(out, d.lineA);
    out += u'\t';
    if (d.lineB > 0)
        appendNumber(out, d.lineB);
    out += u'\n';
}

QString diffSummaryText(const std::vector<DiffEntry>& diff) {
    if (diff.empty())
        return u"Keine Unterschiede: beide Dateien setzen dasselbe."_s;
    qsizetype counts[3] = {0, 0, 0};
    for (const DiffEntry& d : diff)
        ++counts[int(d.change)];
    return u"%1 hinzugefügt, %2 entfernt, %3 geändert"_s.arg(counts[0]).arg(counts[1]).arg(counts[2]);
}

QString lockedLineText(const EffectiveSetting& s, const std::vector<ConfigSource>& sources) {
    return u"gesperrt durch config.sup: dort steht %1. Diese Zeile bleibt ohne Wirkung."_s.arg(
        quotedSetting(s, s.inEffect.front(), sources));
}

QString overriddenLineText(const EffectiveSetting& s, const std::vector<ConfigSource>& sources) {
    return u"überschrieben: es gilt %1. Diese Zeile bleibt ohne Wirkung."_s.arg(
        quotedSetting(s, s.inEffect.front(), sources));
}

} // namespace quenfor
