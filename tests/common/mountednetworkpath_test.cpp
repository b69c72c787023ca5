#include "common/errors.h"
#include "common/mountednetworkpath.h"

#include "qstringprinting.h"

#include <gtest/gtest.h>

#include <span>

using namespace Qt::StringLiterals;
using namespace quenfor;

namespace {

// The same share mounted twice (cifs, then smb3), an nfs export, a blank in a share name, and a
// local file system mounted inside a share.
const QList<MountEntry>& mounts() {
    static const QList<MountEntry> table = parseMountTable("/dev/sda1 / ext4 rw 0 0\n"
                                                           "//fileserver/cad /mnt/cad cifs rw,vers=3.0 0 0\n"
                                                           "nas:/export/projects /mnt/projects nfs4 rw 0 0\n"
                                                           "//FileServer/Team\\040Data /mnt/team\\040data cifs rw 0 0\n"
                                                           "//fileserver/cad/ /media/cad-again smb3 rw 0 0\n"
                                                           "tmpfs /mnt/cad/scratch tmpfs rw 0 0\n");
    return table;
}

struct ConversionCase {
    QString from;
    QString to; // empty: not convertible
};

void expectConversions(std::span<const ConversionCase> cases,
                       QString (*convert)(const QString&, bool, const QList<MountEntry>&)) {
    for (const ConversionCase& c : cases) {
        SCOPED_TRACE(c.from.toStdString());
        if (c.to.isEmpty()) {
            EXPECT_EQ(convert(c.from, true, mounts()), c.from);
            try {
                convert(c.from, false, mounts());
                ADD_FAILURE() << "no error raised";
            } catch (const QuenforError& error) {
                EXPECT_EQ(error.number(), 5);
                EXPECT_FALSE(error.description().isEmpty());
            }
        } else {
            EXPECT_EQ(convert(c.from, false, mounts()), c.to);
        }
    }
}

TEST(MountedNetworkPath, LocalPathsUnderNetworkMountsGetTheirNetworkName) {
    const ConversionCase cases[] = {
        {u"/mnt/cad/parts/bracket.prt.3"_s, u"//fileserver/cad/parts/bracket.prt.3"_s},
        {u"/mnt/cad"_s, u"//fileserver/cad"_s},
        {u"\\mnt\\cad\\\\parts\\"_s, u"//fileserver/cad/parts/"_s},
        {u"/mnt/projects/a"_s, u"//nas/export/projects/a"_s},
        {u"/mnt/team data/x"_s, u"//FileServer/Team Data/x"_s},
        {u"/media/cad-again/p"_s, u"//fileserver/cad/p"_s},
        // The deepest mount holds the path: a local one inside a share, the root beside one.
        {u"/mnt/cad/scratch/tmp"_s, {}},
        {u"/mnt/cadx/a"_s, {}},
        {u"relative/path"_s, {}},
    };
    expectConversions(cases, &driveToNetworkPath);
}

TEST(MountedNetworkPath, NetworkPathsGoToTheFirstMountOfTheirShare) {
    const ConversionCase cases[] = {
        {u"//fileserver/cad/parts/x.prt"_s, u"/mnt/cad/parts/x.prt"_s},
        {u"\\\\FILESERVER\\CAD\\Parts"_s, u"/mnt/cad/Parts"_s},
        {u"//fileserver/cad"_s, u"/mnt/cad"_s},
        {u"//nas/export/projects/p1"_s, u"/mnt/projects/p1"_s},
        {u"//fileserver/team data/y"_s, u"/mnt/team data/y"_s},
        {u"//fileserver/cad2/x"_s, {}},
        {u"//other/share"_s, {}},
        {u"/mnt/cad/x"_s, {}},
        {QString(), {}},
    };
    expectConversions(cases, &networkToDrivePath);
}

TEST(MountedNetworkPath, ARootMountJoinsWithoutDoubleSeparators) {
    const QList<MountEntry> rootOnNfs = parseMountTable("srv:/ / nfs rw 0 0\n");
    EXPECT_EQ(driveToNetworkPath(u"/home/a"_s, false, rootOnNfs), u"//srv/home/a"_s);
    EXPECT_EQ(networkToDrivePath(u"//srv/home/a"_s, false, rootOnNfs), u"/home/a"_s);
    EXPECT_EQ(networkToDrivePath(u"//srv"_s, false, rootOnNfs), u"/"_s);
}

} // namespace
