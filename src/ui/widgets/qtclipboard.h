#pragma once

#include "document/clipboard.h"

namespace quenfor {

// The system clipboard for the line operations.
class QtClipboard : public Clipboard {
public:
    QString text() const override;
    void setText(const QString& text) override;
};

} // namespace quenfor
