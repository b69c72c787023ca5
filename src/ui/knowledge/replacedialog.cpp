#include "ui/knowledge/replacedialog.h"

#include "document/configdocument.h"
#include "knowledge/replacelines.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace quenfor {

ReplaceDialog::ReplaceDialog(ConfigDocument* document, QWidget* parent)
    : QDialog(parent), m_document(document), m_find(new QLineEdit(this)), m_replacement(new QLineEdit(this)),
      m_run(new QPushButton(tr("ersetzen"), this)), m_count(new QLabel(this)), m_word(new QLabel(this)),
      m_exit(new QPushButton(tr("Schließen"), this)) {
    setObjectName(u"frm_ersetz"_s);
    setWindowTitle(tr("Ersetzen"));
    setModal(false);

    m_find->setObjectName(u"txt_finde"_s);
    m_replacement->setObjectName(u"txt_replace"_s);
    m_run->setObjectName(u"cmd_ersetzen"_s);
    m_count->setObjectName(u"lbl_anzahl"_s);
    m_word->setObjectName(u"lbl_text"_s);
    m_exit->setObjectName(u"cmd_exit"_s);
    // Paths are the usual texts to replace: room for a long one.
    for (QLineEdit* entry : {m_find, m_replacement}) {
        entry->setMinimumWidth(45 * fontMetrics().averageCharWidth());
        entry->setClearButtonEnabled(true);
    }
    // Enter in either box runs the replacement, as in every replace dialog.
    m_run->setDefault(true);
    m_exit->setAutoDefault(false);

    auto* findLabel = new QLabel(tr("find:"), this);
    findLabel->setObjectName(u"Label1"_s);
    findLabel->setBuddy(m_find);
    auto* replaceLabel = new QLabel(tr("replace:"), this);
    replaceLabel->setObjectName(u"Label2"_s);
    replaceLabel->setBuddy(m_replacement);

    auto* fields = new QGridLayout;
    fields->addWidget(findLabel, 0, 0);
    fields->addWidget(m_find, 0, 1);
    fields->addWidget(replaceLabel, 1, 0);
    fields->addWidget(m_replacement, 1, 1);
    fields->setColumnStretch(1, 1);

    auto* buttons = new QHBoxLayout;
    buttons->addWidget(m_run);
    buttons->addWidget(m_count);
    buttons->addWidget(m_word);
    buttons->addStretch();
    buttons->addWidget(m_exit);

    auto* layout = new QVBoxLayout(this);
    layout->addLayout(fields);
    layout->addLayout(buttons);
    layout->setSizeConstraint(QLayout::SetMinimumSize);

    const ReplaceTexts texts = loadReplaceTexts();
    m_find->setText(texts.find);
    m_replacement->setText(texts.replacement);

    connect(m_run, &QPushButton::clicked, this, &ReplaceDialog::replace);
    connect(m_exit, &QPushButton::clicked, this, &ReplaceDialog::reject);
}

int ReplaceDialog::replace() {
    m_count->clear();
    m_word->clear();
    const int count = m_document ? replaceInDocument(*m_document, m_find->text(), m_replacement->text()) : 0;
    m_count->setText(QString::number(count));
    m_word->setText(QString::fromUtf16(kReplacedWord));
    return count;
}

void ReplaceDialog::done(int result) {
    // Every way out (the button, Escape, the window's close box) passes here.
    storeReplaceTexts({m_find->text(), m_replacement->text()});
    QDialog::done(result);
}

} // namespace quenfor
