#include "ui/desktools/aboutdialog.h"

#include "desktools/aboutinfo.h"
#include "ui/widgets/bearpicture.h"
#include "ui/widgets/formwidgets.h"

#include <QFontDatabase>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace quenfor {

namespace {

QLabel* infoLabel(const QString& name, const QString& text, QWidget* parent) {
    auto* label = new QLabel(text, parent);
    label->setObjectName(name);
    label->setWordWrap(true);
    label->setTextInteractionFlags(Qt::TextSelectableByMouse);
    return label;
}

} // namespace

AboutDialog::AboutDialog(QWidget* parent) : QDialog(parent) {
    const AboutInfo info = aboutInfo();
    setObjectName(u"frmAbout"_s);
    setWindowTitle(tr("Über %1").arg(info.programName));
    setWindowModality(Qt::WindowModal);

    auto* picture = new QLabel(this);
    picture->setObjectName(u"img_bear"_s);
    picture->setPixmap(bearPicture(BearPose::Explaining, 96));
    picture->setAlignment(Qt::AlignTop);

    auto* name = infoLabel(u"lbl_name"_s, info.programName, this);
    QFont nameFont = name->font();
    nameFont.setPointSizeF(nameFont.pointSizeF() * 2);
    nameFont.setBold(true);
    name->setFont(nameFont);

    auto* text = new QVBoxLayout;
    text->addWidget(name);
    text->addWidget(infoLabel(u"lbl_version"_s, tr("Version %1").arg(info.version), this));
    text->addWidget(infoLabel(u"lbl_beschreibung"_s, info.description, this));
    text->addWidget(infoLabel(u"lbl_copyright"_s, info.copyright, this));
    text->addWidget(infoLabel(u"lbl_lizenz"_s, tr("Lizenz: %1").arg(info.licenceName), this));
    text->addStretch(1);

    auto* licence = new QPlainTextEdit(info.licenceText, this);
    licence->setObjectName(u"txt_lizenz"_s);
    licence->setReadOnly(true);
    licence->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    licence->setLineWrapMode(QPlainTextEdit::NoWrap);
    const QFontMetrics metrics(licence->font());
    licence->setMinimumSize(metrics.horizontalAdvance(QString(80, u'M')) + 32, 14 * metrics.lineSpacing());

    auto* close = namedButton(u"cmd_close"_s, tr("Schließen"), this);
    close->setDefault(true);
    connect(close, &QPushButton::clicked, this, &QDialog::close);

    auto* top = new QHBoxLayout;
    top->addWidget(picture);
    top->addLayout(text, 1);
    auto* bottom = new QHBoxLayout;
    bottom->addStretch(1);
    bottom->addWidget(close);
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(top);
    layout->addWidget(licence, 1);
    layout->addLayout(bottom);
}

} // namespace quenfor
