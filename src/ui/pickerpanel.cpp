#include "ui/pickerpanel.h"

#include "common/pathsplit.h"
#include "document/documentfile.h"
#include "document/filefamily.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFileInfo>
#include <QFrame>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace quenfor {

namespace {

QListWidget* makePickerList(const QString& name, QWidget* parent) {
    auto* list = new QListWidget(parent);
    list->setObjectName(name);
    list->setUniformItemSizes(true);
    list->hide();
    return list;
}

} // namespace

PickerPanel::PickerPanel(QWidget* parent)
    : QWidget(parent), m_optionFrame(new QFrame(this)), m_categories(new QComboBox(m_optionFrame)),
      m_cfg(makePickerList(u"List2cfg"_s, this)), m_dtl(makePickerList(u"List2dtl"_s, this)),
      m_pcf(makePickerList(u"List2pcf"_s, this)), m_addFrame(new QFrame(this)),
      m_allButton(new QPushButton(u"Alle"_s, m_addFrame)), m_searchProFrame(new QFrame(this)),
      m_searchProButton(new QPushButton(u"search.pro Generator"_s, m_searchProFrame)),
      m_colorButton(new QPushButton(u"Farbe"_s, this)), m_explain(new QCheckBox(u"ErklärBär"_s, this)),
      m_knowledgeBase(new QLabel(this)) {
    m_optionFrame->setObjectName(u"Frame1"_s);
    m_categories->setObjectName(u"combo_kathegorie"_s);
    m_addFrame->setObjectName(u"frame_hinzu"_s);
    m_allButton->setObjectName(u"cmdAlle"_s);
    m_searchProFrame->setObjectName(u"frame_search_pro"_s);
    m_searchProButton->setObjectName(u"cmd_searchprogen"_s);
    m_colorButton->setObjectName(u"cmd_Color"_s);
    m_explain->setObjectName(u"chk_erklaerbaer"_s);
    m_knowledgeBase->setObjectName(u"lbl_configopts"_s);
    m_knowledgeBase->hide();

    auto* optionLayout = new QVBoxLayout(m_optionFrame);
    optionLayout->setContentsMargins(0, 0, 0, 0);
    optionLayout->addWidget(m_categories);
    auto* addLayout = new QVBoxLayout(m_addFrame);
    addLayout->setContentsMargins(0, 0, 0, 0);
    addLayout->addWidget(m_allButton);
    auto* searchLayout = new QVBoxLayout(m_searchProFrame);
    searchLayout->setContentsMargins(0, 0, 0, 0);
    searchLayout->addWidget(m_searchProButton);

    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_explain);
    layout->addWidget(m_optionFrame);
    layout->addWidget(m_cfg, 1);
    layout->addWidget(m_dtl, 1);
    layout->addWidget(m_pcf, 1);
    layout->addWidget(m_addFrame);
    layout->addWidget(m_searchProFrame);
    layout->addWidget(m_colorButton);
    layout->addStretch(0);

    m_optionFrame->hide();
    m_searchProFrame->hide();
    m_colorButton->hide();
    setMinimumWidth(220);
}

QListWidget* PickerPanel::pickerList(const QString& objectName) const {
    for (QListWidget* list : {m_cfg, m_dtl, m_pcf}) {
        if (list->objectName() == objectName)
            return list;
    }
    return nullptr;
}

QStringList PickerPanel::configPickerEntries() const {
    QStringList entries;
    entries.reserve(m_cfg->count());
    for (int i = 0; i < m_cfg->count(); ++i)
        entries.append(m_cfg->item(i)->text());
    return entries;
}

QString PickerPanel::knowledgeBasePath() const {
    return m_knowledgeBase->text();
}

QString PickerPanel::applyFamily(const FileFamily& family, const QString& dataFolder) {
    for (QListWidget* list : {m_cfg, m_dtl, m_pcf})
        list->hide();
    m_optionFrame->setVisible(family.optionFrameVisible);
    m_categories->setVisible(family.categoryBoxVisible);
    m_addFrame->setVisible(family.addFrameVisible);
    m_allButton->setVisible(family.allButtonVisible);
    m_searchProFrame->setVisible(family.searchProFrameVisible);
    m_colorButton->setVisible(family.colorButtonVisible);

    QListWidget* picker = pickerList(family.pickerList);
    if (!picker)
        return {};
    picker->setVisible(family.pickerVisible);
    m_knowledgeBase->setText(joinFolderAndName(dataFolder, family.knowledgeBaseFile));

    const QString source = joinFolderAndName(dataFolder, family.optionListFile);
    if (!QFileInfo(source).isFile())
        return {};
    const ReadResult read = readDocumentFile(source, {});
    if (!read.ok)
        return read.error;
    picker->clear();
    picker->addItems(read.lines);
    return family.pickerLoadedStatus();
}

} // namespace quenfor
