// What the path converter window shows: a converted path, or the path unchanged with a German
// message where the conversion would raise error 5.
#include "common/errors.h"
#include "common/pathconversion.h"

#include "qstringprinting.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace quenfor;

namespace {

PathConverters fedConverters() {
    return PathConverters::withMounts(parseMountTable("/dev/sda1 / ext4 rw 0 0\n"
                                                      "//fileserver/cad /mnt/cad cifs rw 0 0\n"
                                                      "nas:/export/projects /mnt/projects nfs4 rw 0 0\n"));
}

// Short and long names as a Windows volume would give them, for one existing path only.
PathConverters namesConverters() {
    PathConverters converters = fedConverters();
    converters.shortNames = true;
    converters.toShort = [](const QString& path) {
        return path == u"C:\\Programme\\Langer Name"_s ? u"C:\\PROGRA~1\\LANGER~1"_s : QString();
    };
    converters.toLong = [](const QString& path) {
        return path == u"C:\\PROGRA~1\\LANGER~1"_s ? u"C:\\Programme\\Langer Name"_s : QString();
    };
    return converters;
}

TEST(PathConversion, ShortAndLongNamesOfExistingPaths) {
    const PathConverters converters = namesConverters();
    PathConversion c = convertPath(u"\"C:\\Programme\\Langer Name\""_s, PathDirection::ToShort, converters);
    EXPECT_TRUE(c.converted);
    EXPECT_EQ(c.path, u"C:\\PROGRA~1\\LANGER~1"_s);
    c = convertPath(u"C:\\PROGRA~1\\LANGER~1"_s, PathDirection::ToLong, converters);
    EXPECT_EQ(c.path, u"C:\\Programme\\Langer Name"_s);
    EXPECT_TRUE(c.message.isEmpty());

    // A path the system cannot resolve stays, with the reason.
    c = convertPath(u"C:\\weg"_s, PathDirection::ToShort, converters);
    EXPECT_FALSE(c.converted);
    EXPECT_EQ(c.path, u"C:\\weg"_s);
    EXPECT_EQ(c.message, u"Den Pfad \"C:\\weg\" gibt es nicht, oder er kann nicht gelesen werden; kurze und lange "
                         u"Namen haben nur vorhandene Dateien und Ordner. Er bleibt unverändert."_s);
}

TEST(PathConversion, WithoutShortNamesBothFormsSayWhy) {
    PathConverters converters = namesConverters();
    converters.shortNames = false;
    for (const PathDirection direction : {PathDirection::ToShort, PathDirection::ToLong}) {
        const PathConversion c = convertPath(u"C:\\Programme\\Langer Name"_s, direction, converters);
        EXPECT_FALSE(c.converted);
        EXPECT_EQ(c.path, u"C:\\Programme\\Langer Name"_s);
        EXPECT_EQ(c.message, shortNamesUnavailableText());
    }
#ifndef Q_OS_WIN
    EXPECT_FALSE(PathConverters::system().shortNames);
#endif
}

TEST(PathConversion, ConvertsOrExplainsWhyNot) {
    const struct {
        const char* label;
        QString input;
        PathDirection direction;
        bool converted;
        QString path;
        QString message;
    } cases[] = {
        {"to_network", u"/mnt/cad/parts/bracket.prt.3"_s, PathDirection::ToNetwork, true,
         u"//fileserver/cad/parts/bracket.prt.3"_s, QString()},
        {"nfs_to_network", u"/mnt/projects/a"_s, PathDirection::ToNetwork, true, u"//nas/export/projects/a"_s,
         QString()},
        {"to_drive", u"\\\\FILESERVER\\cad\\parts"_s, PathDirection::ToDrive, true, u"/mnt/cad/parts"_s, QString()},
        // What a file manager's "copy as path" gives: quotes and blanks around the path.
        {"quoted", u"  \"/mnt/cad/a b\"  "_s, PathDirection::ToNetwork, true, u"//fileserver/cad/a b"_s, QString()},
        {"local_stays", u"/home/cad/x"_s, PathDirection::ToNetwork, false, u"/home/cad/x"_s,
         u"Der Pfad \"/home/cad/x\" liegt auf keinem Netzlaufwerk und in keiner eingehängten Netzwerkfreigabe. Er "
         u"bleibt unverändert."_s},
        {"unknown_share_stays", u"//other/share/x"_s, PathDirection::ToDrive, false, u"//other/share/x"_s,
         u"Die Netzwerkfreigabe des Pfades \"//other/share/x\" ist mit keinem Laufwerk verbunden und nirgends "
         u"eingehängt. Der Pfad bleibt unverändert."_s},
        {"empty", u"  "_s, PathDirection::ToDrive, false, QString(), u"Bitte geben Sie zuerst einen Pfad ein."_s},
    };
    const PathConverters converters = fedConverters();
    for (const auto& c : cases) {
        SCOPED_TRACE(c.label);
        const PathConversion result = convertPath(c.input, c.direction, converters);
        EXPECT_EQ(result.converted, c.converted);
        EXPECT_EQ(result.path, c.path);
        EXPECT_EQ(result.message, c.message);
    }
}

TEST(PathConversion, NetworkPathsGoToTheDriveEverythingElseToTheNetwork) {
    const struct {
        QString input;
        PathDirection direction;
    } cases[] = {
        {u"\\\\server\\share"_s, PathDirection::ToDrive},
        {u"//server/share"_s, PathDirection::ToDrive},
        {u"\"\\\\server\\share\""_s, PathDirection::ToDrive},
        {u"/mnt/cad"_s, PathDirection::ToNetwork},
        {u"C:\\3d"_s, PathDirection::ToNetwork},
        {u"/"_s, PathDirection::ToNetwork},
        {QString(), PathDirection::ToNetwork},
    };
    for (const auto& c : cases)
        EXPECT_EQ(naturalDirection(c.input), c.direction) << c.input.toStdString();
}

TEST(PathConversion, OtherErrorsAreNotHidden) {
    PathConverters failing;
    failing.toNetwork = [](const QString&, bool) -> QString { throw QuenforError(53, u"x"_s, u"y"_s); };
    EXPECT_THROW(convertPath(u"/a"_s, PathDirection::ToNetwork, failing), QuenforError);
}

} // namespace
