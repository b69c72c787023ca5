#include "document/configdocument.h"
#include "ui/main/documentlistmodel.h"

#include <QTest>

using namespace Qt::StringLiterals;
using namespace quenfor;

class DocumentListModelTest : public QObject {
    Q_OBJECT

private slots:
    // A line too long to lay out shows its beginning, without half a character at the cut;
    // editing still gets all of it.
    void showsTheBeginningOfAnOverlongLine() {
        const QString pair = u"😀"_s;
        const QString cutInPair = QString(kListShownLength - 1, u'x') + pair + u"rest"_s;
        const QString cutAfterPair = QString(kListShownLength - 2, u'x') + pair + u"rest"_s;
        const QString fits = QString(kListShownLength - 2, u'x') + pair;
        ConfigDocument doc;
        doc.replaceAll({cutInPair, cutAfterPair, fits});
        DocumentListModel model(&doc);
        QStringList shown;
        for (int row = 0; row < model.rowCount(); ++row)
            shown.append(model.data(model.index(row, 0)).toString());
        QCOMPARE(shown,
                 QStringList({cutInPair.first(kListShownLength - 1), cutAfterPair.first(kListShownLength), fits}));
        for (int row = 0; row < doc.count(); ++row)
            QCOMPARE(model.data(model.index(row, 0), Qt::EditRole).toString(), doc.line(row));
    }
};

QTEST_GUILESS_MAIN(DocumentListModelTest)
#include "documentlistmodel_test.moc"
