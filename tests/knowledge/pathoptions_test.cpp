// The 23 path options: where a value is remembered and the warning that a missing folder or file
// gets. The window tests click the buttons; these check the rules they rest on.
#include "../common/qstringprinting.h"
#include "../settings/storesandbox.h"
#include "document/configdocument.h"
#include "knowledge/pathoptions.h"

#include <QDir>
#include <QFile>
#include <QSettings>

#include <gtest/gtest.h>

#include <algorithm>
#include <numeric>

using namespace Qt::StringLiterals;
using namespace quenfor;

namespace {

const PathOption& optionNamed(const QString& option) {
    const int index = pathOptionIndex(option);
    EXPECT_GE(index, 0) << option.toStdString();
    return pathOptions().at(index);
}

QStringList defaults() {
    QStringList values;
    for (const PathOption& option : pathOptions())
        values.append(option.defaultValue);
    return values;
}

using PathOptionsStore = StoreSandbox;

} // namespace

TEST(PathOptions, InsertAllOrderCoversEveryOptionOnce) {
    QList<int> order = insertAllOrder();
    std::sort(order.begin(), order.end());
    QList<int> every(pathOptions().size());
    std::iota(every.begin(), every.end(), 0);
    EXPECT_EQ(order, every);
}

TEST(PathOptions, ExistenceWarnings) {
    QTemporaryDir dir;
    ASSERT_TRUE(dir.isValid());
    const QString folder = dir.path();
    const QString file = dir.filePath(u"search.pro"_s);
    QFile f(file);
    ASSERT_TRUE(f.open(QIODevice::WriteOnly));
    f.close();
    const QString missing = dir.filePath(u"fehlt"_s);
    const struct {
        QString option;
        QString value;
        QString warning;
    } cases[] = {
        {u"pro_format_dir"_s, folder, {}},
        {u"pro_format_dir"_s, missing, u"Verzeichnis "_s + missing + u" existiert nicht !"_s},
        {u"pro_format_dir"_s, file, u"Verzeichnis "_s + file + u" existiert nicht !"_s}, // a file is no folder
        {u"pro_format_dir"_s, QString(), u"Verzeichnis  existiert nicht !"_s},
        {u"search_path_file"_s, file, {}},
        {u"search_path_file"_s, folder, u"Datei "_s + folder + u" existiert nicht !"_s}, // a folder is no file
        {u"company_name"_s, QString(), {}},                                              // no test at all
    };
    for (const auto& c : cases) {
        const PathOption& option = optionNamed(c.option);
        EXPECT_EQ(existenceWarning(option, c.value), c.warning)
            << c.option.toStdString() << " " << c.value.toStdString();
        EXPECT_EQ(pathValueExists(option, c.value), c.warning.isEmpty()) << c.option.toStdString();
    }
}

TEST_F(PathOptionsStore, ValuesLiveUnderTheTextBoxKey) {
    const PathOption& format = optionNamed(u"pro_format_dir"_s);
    ASSERT_TRUE(storePathValue(format, u"D:\\formate"_s));
    QSettings ini(iniFile(u"quenfor"_s), QSettings::IniFormat);
    EXPECT_EQ(ini.value(u"Optionen/TextFormat.Text"_s).toString(), u"D:\\formate"_s);

    // An empty value is a value, not a reason to fall back to the default.
    ASSERT_TRUE(storePathValue(format, QString()));
    QStringList expected = defaults();
    expected[pathOptionIndex(u"pro_format_dir"_s)] = QString();
    EXPECT_EQ(loadPathValues(), expected);
}

TEST_F(PathOptionsStore, UnwritableStoreIsReportedAndTheLineStays) {
    // A folder where the INI file belongs.
    ASSERT_TRUE(QDir().mkpath(iniFile(u"quenfor"_s)));
    ConfigDocument doc;
    const PathInsertResult one = insertPathOption(doc, pathOptionIndex(u"company_name"_s), u"x"_s);
    EXPECT_FALSE(one.stored);
    EXPECT_FALSE(insertAllPathOptions(doc, defaults()).stored);
    EXPECT_EQ(doc.count(), 24);
    EXPECT_EQ(doc.line(0), u"company_name x"_s);
}
