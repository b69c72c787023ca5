#pragma once

#include <QString>
#include <QStringList>

#include <optional>

namespace quenfor {

class ConfigDocument;

// What the window shows beside the entry line after every change of its text.
struct EntryLineCheck {
    static constexpr int kLengthLimit = 98; // the CAD system's line length; longer lines only warn
    static constexpr int kNormalWidthTwips = 6375;
    static constexpr int kWideWidthTwips = 8500;
    static constexpr int kPickerColor = 49152; // green, as 0x00BBGGRR
    static constexpr int kDocumentColor = 255; // red

    bool tooLong = false;
    int entryWidthTwips = kNormalWidthTwips;
    QString warning; // text of lbl_warn, empty when hidden

    struct Preview {
        QString text;
        int color = 0;
    };
    std::optional<Preview> preview; // none: lblvorschau keeps its previous text

    int favoriteIconLeft = 320; // 480 for favourite lines, so the check icon stands beside them
};

EntryLineCheck checkEntryLine(const QString& entry, const QStringList& picker, const ConfigDocument& doc);

} // namespace quenfor
