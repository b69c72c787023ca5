#pragma once

#include <QString>

namespace quenfor {

// The system clipboard as the line operations see it; the window passes QClipboard's, tests a fake.
class Clipboard {
public:
    virtual ~Clipboard() = default;
    virtual QString text() const = 0;
    // Clears the clipboard and puts the text on it.
    virtual void setText(const QString& text) = 0;
};

} // namespace quenfor
