// A wrong swatch name or a swapped text and background colour would leave the list unreadable.
#include "panelsandbox.h"

#include "settings/colourschemes.h"
#include "ui/main/colourpanel.h"
#include "ui/widgets/applycolourscheme.h"

#include <QLabel>
#include <QListView>
#include <QPushButton>
#include <QSignalSpy>

using namespace Qt::StringLiterals;
using namespace quenfor;

class ColourPanelTest : public QObject {
    Q_OBJECT

private slots:
    void swatchChoosesItsScheme() {
        for (const QString& name : colourSchemeNames()) {
            swatchChooses(name);
            if (QTest::currentTestFailed())
                return;
        }
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

private:
    static QColor colour(RgbColour c) { return QColor(c.red, c.green, c.blue); }

    void swatchChooses(const QString& name) {
        const QColor text = colour(colourScheme(name)->text);
        const QColor base = colour(colourScheme(name)->background);
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
};

int main(int argc, char** argv) {
    return runInSettingsSandbox<ColourPanelTest>(argc, argv);
}

#include "colourpanel_test.moc"
