// A wrong swatch name or a swapped text and background colour would leave the list unreadable.
#include "panelsandbox.h"

#include "ui/widgets/applycolourscheme.h"
#include "ui/main/colourpanel.h"

#include <QLabel>
#include <QListView>
#include <QPushButton>
#include <QSignalSpy>

using namespace Qt::StringLiterals;
using namespace quenfor;

class ColourPanelTest : public QObject {
    Q_OBJECT

private slots:
    void swatchChoosesItsScheme_data() {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QColor>("text");
        QTest::addColumn<QColor>("base");
        QTest::newRow("schwarz") << u"schwarz"_s << QColor(0x80, 0xFF, 0xFF) << QColor(Qt::black);
        QTest::newRow("weiss") << u"weiss"_s << QColor(0x00, 0x00, 0x80) << QColor(Qt::white);
        QTest::newRow("blau") << u"blau"_s << QColor(0x80, 0xFF, 0xFF) << QColor(0x00, 0x00, 0x60);
    }

    void swatchChoosesItsScheme() {
        QFETCH(QString, name);
        QFETCH(QColor, text);
        QFETCH(QColor, base);
        ColourPanel panel;
        panel.setSchemeName(u"weiss"_s);
        panel.show();
        auto* label = panel.findChild<QLabel*>(u"lbl_schwarzweissblau"_s);
        auto* swatch = panel.findChild<QPushButton*>(name);
        QVERIFY(label && swatch && !label->isVisible());
        QSignalSpy chosen(&panel, &ColourPanel::schemeChosen);

        QTest::mouseClick(swatch, Qt::LeftButton);
        QCOMPARE(chosen.count(), 1);
        QCOMPARE(chosen.at(0).at(0).toString(), name);
        QCOMPARE(label->text(), name);
        QVERIFY(panel.isHidden());

        QListView list;
        QVERIFY(applyColourScheme(&list, name));
        for (const QPalette::ColorGroup group : {QPalette::Active, QPalette::Inactive}) {
            QCOMPARE(list.palette().color(group, QPalette::Text), text);
            QCOMPARE(list.palette().color(group, QPalette::Base), base);
        }
        // The rows are painted on the viewport, which must follow the list.
        QCOMPARE(list.viewport()->palette().color(QPalette::Base), base);
    }

    void unknownSchemeKeepsTheListColours() {
        QListView list;
        QVERIFY(applyColourScheme(&list, u"blau"_s));
        const QPalette before = list.palette();
        for (const QString& name : {u"rot"_s, u"Weiss"_s, QString()}) {
            QVERIFY(!applyColourScheme(&list, name));
            QCOMPARE(list.palette(), before);
        }
    }
};

int main(int argc, char** argv) {
    return runInSettingsSandbox<ColourPanelTest>(argc, argv);
}

#include "colourpanel_test.moc"
