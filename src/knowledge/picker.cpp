#include "knowledge/picker.h"

#include <QFile>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace quenfor {

QStringList builtInPickerEntries(const QString& pickerList) {
    if (pickerList == u"List2pcf")
        return {u"plotter_command Windows_Print_Manager Drucker..."_s};
    if (pickerList != u"List2dtl")
        return {};
    static const QStringList drawingSetup = [] {
        QFile file(u":/knowledge/builtin_dtl_picker.txt"_s);
        if (!file.open(QIODevice::ReadOnly))
            return QStringList();
        QStringList lines = QString::fromUtf8(file.readAll()).split(u'\n');
        while (!lines.isEmpty() && lines.last().isEmpty())
            lines.removeLast();
        return lines;
    }();
    return drawingSetup;
}

QStringList takeOverSelection(const QString& fileName, const QString& pickerList, const QStringList& entries,
                              const QList<int>& selectedRows) {
    const QString ending = fileName.right(3);
    QString owner;
    if (ending == u"pro" || ending == u"PRO" || ending == u"sup" || ending == u"SUP")
        owner = u"List2cfg"_s;
    else if (ending == u"dtl" || ending == u"DTL")
        owner = u"List2dtl"_s;
    else if (ending == u"pcf" || ending == u"PCF")
        owner = u"List2pcf"_s;
    if (owner != pickerList)
        return {};
    QList<int> rows = selectedRows;
    std::sort(rows.begin(), rows.end()); // list order, not the order of clicking
    QStringList taken;
    for (int row : rows) {
        if (row >= 0 && row < entries.size())
            taken.append(entries[row]);
    }
    return taken;
}

} // namespace quenfor
