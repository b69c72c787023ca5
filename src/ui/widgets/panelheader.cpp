#include "ui/widgets/panelheader.h"

#include <QAbstractButton>
#include <QHBoxLayout>
#include <QLabel>

namespace quenfor {

QLabel* boldLabel(const QString& text, QWidget* parent) {
    auto* label = new QLabel(text, parent);
    QFont bold = label->font();
    bold.setBold(true);
    label->setFont(bold);
    return label;
}

QHBoxLayout* makePanelHeader(QWidget* panel, const QString& title, QAbstractButton* closeButton,
                             const std::function<void()>& closed) {
    QObject::connect(closeButton, &QAbstractButton::clicked, panel, [panel, closed] {
        panel->hide();
        closed();
    });
    auto* header = new QHBoxLayout;
    header->addWidget(boldLabel(title, panel));
    header->addStretch();
    header->addWidget(closeButton);
    return header;
}

} // namespace quenfor
