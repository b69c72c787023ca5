#include "ui/knowledge/pickerpanel.h"

#include "common/pathsplit.h"
#include "document/documentfile.h"
#include "document/filefamily.h"
#include "knowledge/categories.h"
#include "knowledge/categorysort.h"
#include "knowledge/optionfacts.h"
#include "knowledge/optionreleases.h"
#include "knowledge/picker.h"
#include "ui/widgets/bearpicture.h"
#include "ui/widgets/statushints.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDir>
#include <QFileInfo>
#include <QFont>
#include <QFrame>
#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QMenu>
#include <QMouseEvent>
#include <QPalette>
#include <QPushButton>
#include <QToolButton>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace quenfor {

namespace {
constexpr int kShownSubfolders = 200; // the path display is a glance, not a browser
} // namespace

QListWidget* PickerPanel::makePickerList(const QString& name) {
    auto* list = new QListWidget(this);
    list->setObjectName(name);
    list->setUniformItemSizes(true);
    list->setSelectionMode(QAbstractItemView::ExtendedSelection);
    list->hide();
    connect(list, &QListWidget::itemClicked, this, [this](QListWidgetItem* item) { emit entryClicked(item->text()); });
    connect(list, &QListWidget::itemDoubleClicked, this,
            [this](QListWidgetItem* item) { emit entryDoubleClicked(item->text()); });
    return list;
}

PickerPanel::PickerPanel(QWidget* parent)
    : QWidget(parent), m_optionFrame(new QFrame(this)), m_categories(new QComboBox(m_optionFrame)),
      m_sourceLabel(new QLabel(this)), m_cfg(makePickerList(u"List2cfg"_s)), m_dtl(makePickerList(u"List2dtl"_s)),
      m_pcf(makePickerList(u"List2pcf"_s)), m_addFrame(new QFrame(this)),
      m_allButton(new QPushButton(u"Übernehmen"_s, m_addFrame)), m_knowledge(new QToolButton(this)),
      m_brain(new QLabel(this)), m_categorySort(new QToolButton(this)), m_categoryProgress(new QLabel(this)),
      m_searchProFrame(new QFrame(this)),
      m_searchProButton(new QPushButton(u"search.pro Generator"_s, m_searchProFrame)),
      m_colorButton(new QPushButton(u"Farbe"_s, this)), m_explain(new QCheckBox(u"ErklärBär"_s, this)),
      m_knowledgeBase(new QLabel(this)), m_folderFrame(new QFrame(this)), m_folderLabel(new QLabel(m_folderFrame)),
      m_folderList(new QListWidget(m_folderFrame)) {
    m_optionFrame->setObjectName(u"Frame1"_s);
    m_categories->setObjectName(u"combo_kathegorie"_s);
    m_sourceLabel->setObjectName(u"lbl_quenconfig"_s);
    m_addFrame->setObjectName(u"frame_hinzu"_s);
    m_allButton->setObjectName(u"cmdAlle"_s);
    m_knowledge->setObjectName(u"img_confopts"_s);
    m_brain->setObjectName(u"img_hirn"_s);
    m_categorySort->setObjectName(u"img_kathi"_s);
    m_categoryProgress->setObjectName(u"lbl_kathi"_s);
    m_searchProFrame->setObjectName(u"frame_search_pro"_s);
    m_searchProButton->setObjectName(u"cmd_searchprogen"_s);
    m_colorButton->setObjectName(u"cmd_Color"_s);
    m_explain->setObjectName(u"chk_erklaerbaer"_s);
    m_knowledgeBase->setObjectName(u"lbl_configopts"_s);
    m_folderFrame->setObjectName(u"frame_dir"_s);
    m_knowledgeBase->hide();

    m_categories->addItems(CategoryTable::names());
    m_sourceLabel->setWordWrap(true);
    m_sourceLabel->setStyleSheet(u"color: palette(mid);"_s);
    m_knowledge->setIcon(bearPicture(BearPose::Explaining, 32));
    m_knowledge->setIconSize(QSize(32, 32));
    m_knowledge->installEventFilter(this);
    m_brain->setPixmap(bearPicture(BearPose::Brain, 32));
    m_brain->setCursor(Qt::PointingHandCursor);
    m_brain->installEventFilter(this);
    m_brain->hide();
    m_categorySort->setText(u"Themen"_s);
    m_categorySort->setToolButtonStyle(Qt::ToolButtonTextOnly);

    auto* optionLayout = new QVBoxLayout(m_optionFrame);
    optionLayout->setContentsMargins(0, 0, 0, 0);
    auto* categoryRow = new QHBoxLayout;
    categoryRow->addWidget(m_categories, 1);
    optionLayout->addLayout(categoryRow);
    auto* addLayout = new QVBoxLayout(m_addFrame);
    addLayout->setContentsMargins(0, 0, 0, 0);
    addLayout->addWidget(m_allButton);
    auto* searchLayout = new QVBoxLayout(m_searchProFrame);
    searchLayout->setContentsMargins(0, 0, 0, 0);
    searchLayout->addWidget(m_searchProButton);
    auto* folderLayout = new QVBoxLayout(m_folderFrame);
    folderLayout->setContentsMargins(0, 0, 0, 0);
    folderLayout->addWidget(m_folderLabel);
    folderLayout->addWidget(m_folderList);
    m_folderLabel->setWordWrap(true);
    m_folderList->setMaximumHeight(120);
    m_folderFrame->hide();

    auto* bearRow = new QHBoxLayout;
    bearRow->addWidget(m_knowledge);
    bearRow->addWidget(m_explain, 1);
    bearRow->addWidget(m_brain);
    // Outside Frame1, which a search.pro, .dtl or .pcf hides: the sort must be startable there
    // to tell the user it does not apply.
    bearRow->addWidget(m_categorySort);

    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addLayout(bearRow);
    layout->addWidget(m_optionFrame);
    layout->addWidget(m_categoryProgress);
    layout->addWidget(m_sourceLabel);
    layout->addWidget(m_cfg, 1);
    layout->addWidget(m_dtl, 1);
    layout->addWidget(m_pcf, 1);
    layout->addWidget(m_addFrame);
    layout->addWidget(m_folderFrame);
    layout->addWidget(m_searchProFrame);
    layout->addWidget(m_colorButton);
    layout->addStretch(0);

    m_optionFrame->hide();
    m_searchProFrame->hide();
    m_colorButton->hide();
    setMinimumWidth(240);

    connect(m_allButton, &QPushButton::clicked, this, [this] {
        if (QListWidget* picker = visiblePicker())
            emit takeOverClicked(picker->objectName());
    });
    connect(m_categorySort, &QToolButton::clicked, this, &PickerPanel::sortByCategoryClicked);
    m_cfg->setContextMenuPolicy(Qt::CustomContextMenu);
    connect(m_cfg, &QWidget::customContextMenuRequested, this, [this](const QPoint& at) {
        const QListWidgetItem* item = m_cfg->itemAt(at);
        if (QMenu* menu = item ? valueMenu(item->text()) : nullptr)
            menu->popup(m_cfg->viewport()->mapToGlobal(at));
    });
    connect(m_categories, &QComboBox::activated, this, [this](int index) {
        const QString message = filterByCategory(index);
        if (!message.isEmpty())
            emit statusMessage(message);
    });
}

void PickerPanel::registerHints(StatusHints& hints) {
    hints.add(m_cfg, QString::fromUtf16(kConfigPickerHint));
    hints.add(m_allButton, QString::fromUtf16(kTakeOverHint));
    hints.add(m_knowledge, QString::fromUtf16(kKnowledgeButtonHint));
}

QListWidget* PickerPanel::pickerList(const QString& objectName) const {
    for (QListWidget* list : {m_cfg, m_dtl, m_pcf}) {
        if (list->objectName() == objectName)
            return list;
    }
    return nullptr;
}

QListWidget* PickerPanel::visiblePicker() const {
    for (QListWidget* list : {m_cfg, m_dtl, m_pcf}) {
        if (!list->isHidden())
            return list;
    }
    return nullptr;
}

QStringList PickerPanel::entries(const QString& objectName) const {
    QStringList result;
    if (QListWidget* list = pickerList(objectName)) {
        result.reserve(list->count());
        for (int i = 0; i < list->count(); ++i)
            result.append(list->item(i)->text());
    }
    return result;
}

QList<int> PickerPanel::selectedRows(const QString& objectName) const {
    QList<int> rows;
    if (QListWidget* list = pickerList(objectName)) {
        for (const QModelIndex& index : list->selectionModel()->selectedRows())
            rows.append(index.row());
    }
    return rows;
}

QMenu* PickerPanel::valueMenu(const QString& entry) {
    const QStringList lines = allowedValueLines(OptionFacts::builtIn(), entry);
    if (lines.isEmpty())
        return nullptr;
    auto* menu = new QMenu(this);
    menu->setObjectName(u"menu_werte"_s);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    menu->addSection(u"Erlaubte Werte"_s);
    for (const QString& line : lines)
        connect(menu->addAction(line), &QAction::triggered, this, [this, line] { emit entryClicked(line); });
    return menu;
}

void PickerPanel::setTargetRelease(const QString& name) {
    m_release = cadReleaseIndex(name);
    for (QListWidget* list : {m_cfg, m_dtl})
        markHiddenOptions(list);
}

void PickerPanel::markHiddenOptions(QListWidget* list) const {
    const OptionReleases* releases = list == m_cfg   ? &OptionReleases::config()
                                     : list == m_dtl ? &OptionReleases::drawingSetup()
                                                     : nullptr;
    if (!releases)
        return;
    const QBrush hiddenColour = palette().brush(QPalette::Disabled, QPalette::Text);
    for (int i = 0; i < list->count(); ++i) {
        QListWidgetItem* item = list->item(i);
        const QString note = hiddenOptionNote(*releases, item->text(), m_release);
        QFont font = item->font();
        font.setItalic(!note.isEmpty());
        item->setFont(font);
        item->setForeground(note.isEmpty() ? QBrush() : hiddenColour);
        item->setToolTip(note);
    }
}

QString PickerPanel::knowledgeBasePath() const {
    return m_knowledgeBase->text();
}

QString PickerPanel::applyFamily(const FileFamily& family, const QString& dataFolder) {
    m_dataFolder = dataFolder;
    for (QListWidget* list : {m_cfg, m_dtl, m_pcf})
        list->hide();
    m_optionFrame->setVisible(family.optionFrameVisible);
    m_categories->setVisible(family.categoryBoxVisible);
    m_addFrame->setVisible(family.addFrameVisible);
    m_allButton->setVisible(family.allButtonVisible);
    m_searchProFrame->setVisible(family.searchProFrameVisible);
    m_colorButton->setVisible(family.colorButtonVisible);
    m_sourceLabel->clear();

    QListWidget* picker = pickerList(family.pickerList);
    if (!picker) {
        // Nothing open yet: the column would show only a lone button.
        m_sourceLabel->setText(tr("Keine Datei geöffnet. Eine Datei öffnen \"Datei\" → \"Öffnen\" oder ↺ "
                                  "(die zuletzt bearbeitete Datei); dann stehen hier ihre Optionen."));
        return {};
    }
    picker->setVisible(family.pickerVisible);
    m_knowledgeBase->setText(joinFolderAndName(dataFolder, family.knowledgeBaseFile));
    picker->clear();
    picker->addItems(builtInPickerEntries(family.pickerList));

    m_pickerSource = joinFolderAndName(dataFolder, family.optionListFile);
    if (!QFileInfo(m_pickerSource).isFile()) {
        markHiddenOptions(picker);
        return {};
    }
    const ReadResult read = readDocumentFile(m_pickerSource, {});
    if (!read.ok) {
        markHiddenOptions(picker);
        return read.error;
    }
    picker->addItems(read.lines);
    markHiddenOptions(picker);
    if (picker == m_cfg)
        m_categories->setCurrentIndex(0);
    // A search.pro keeps the option list loaded unseen: neither its name nor its reading is news.
    if (!family.pickerVisible)
        return {};
    m_sourceLabel->setText(QDir::toNativeSeparators(m_pickerSource));
    return family.pickerLoadedStatus();
}

void PickerPanel::selectCategory(int index) {
    m_categories->setCurrentIndex(index);
    filterByCategory(index);
}

void PickerPanel::showSortedCategory(int index) {
    selectCategory(index);
    m_categoryProgress->setText(categoryProgressText(index));
    // The sort runs in one go on the user-interface thread; paint the label now, not after it.
    m_categoryProgress->repaint();
}

QString PickerPanel::filterByCategory(int index) {
    m_cfg->clear();
    if (index > 0) {
        m_cfg->addItems(CategoryTable::builtIn().strings(index));
        markHiddenOptions(m_cfg);
        return {};
    }
    const QString source = joinFolderAndName(m_dataFolder, u"quenfor.pro");
    const ReadResult read = QFileInfo(source).isFile() ? readDocumentFile(source, {}) : ReadResult{};
    if (!read.ok)
        return QString::fromUtf16(kPickerSourceMissing);
    m_cfg->addItems(read.lines);
    markHiddenOptions(m_cfg);
    return {};
}

void PickerPanel::showFolder(const QString& folder) {
    m_folderFrame->setVisible(!folder.isEmpty());
    m_folderList->clear();
    if (folder.isEmpty())
        return;
    m_folderLabel->setText(QDir::toNativeSeparators(folder));
    QStringList subfolders = QDir(folder).entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name);
    if (subfolders.size() > kShownSubfolders)
        subfolders.resize(kShownSubfolders);
    m_folderList->addItems(subfolders);
}

void PickerPanel::showBrain(bool shown) {
    m_brain->setVisible(shown);
}

bool PickerPanel::eventFilter(QObject* watched, QEvent* event) {
    if (watched == m_knowledge && event->type() == QEvent::MouseButtonPress) {
        const auto* mouse = static_cast<QMouseEvent*>(event);
        if (mouse->button() == Qt::RightButton) {
            emit brainRequested();
            return true;
        }
        if (mouse->button() == Qt::LeftButton)
            emit explainClicked();
    } else if (watched == m_brain && event->type() == QEvent::MouseButtonRelease) {
        emit brainClicked();
    }
    return QWidget::eventFilter(watched, event);
}

} // namespace quenfor
