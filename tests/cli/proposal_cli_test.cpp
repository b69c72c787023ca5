// "proposal" and "ghost" through the real quenfor-cli binary, as an administrator scripts a new
// company config.pro: the built-in lines appended, the lines already there and their bytes untouched.
#include "knowledge/proposal.h"

#include "clitest.h"

using namespace Qt::StringLiterals;
using namespace quenfor;

namespace {

class ProposalCli : public CliTestBase {};

QByteArray crlf(const QStringList& lines) {
    QByteArray bytes;
    for (const QString& line : lines)
        bytes += line.toUtf8() + "\r\n";
    return bytes;
}

// windows-1252 with CR LF, as the CAD system writes it: "\xE4" is "ä".
const QByteArray kConfig = "! Firma M\xFCller\r\ndisplay shade\r\n";

} // namespace

TEST_F(ProposalCli, AppendsToTheFileOrStartsANewDocument) {
    const QString file = write(u"config.pro"_s, kConfig);
    const QByteArray proposal = crlf(proposalLines());
    const QByteArray ghosts = crlf(ghostLines());
    const struct {
        QStringList args;
        QByteArray input;
        QByteArray expected;
    } cases[] = {
        {{u"proposal"_s}, {}, proposal},
        {{u"proposal"_s, file}, {}, kConfig + proposal},
        {{u"proposal"_s, u"-"_s}, kConfig, kConfig + proposal},
        {{u"ghost"_s}, {}, ghosts},
        {{u"ghost"_s, file}, {}, kConfig + ghosts},
        // A file without a last line end gets one, as the window's save writes it.
        {{u"ghost"_s, u"-"_s}, "x 1", "x 1\r\n" + ghosts},
        // A UTF-8 file stays UTF-8, with its byte order mark.
        {{u"ghost"_s, u"-"_s},
         "\xEF\xBB\xBF! Gr\xC3\xBC\xC3\x9F\x65\r\n",
         "\xEF\xBB\xBF! Gr\xC3\xBC\xC3\x9F\x65\r\n" + ghosts},
    };
    for (const auto& c : cases) {
        const CliRun r = run(c.args, c.input);
        EXPECT_EQ(r.status, 0) << c.args.join(u' ').toStdString() << ": " << r.err.toStdString();
        EXPECT_EQ(r.out, c.expected) << c.args.join(u' ').toStdString();
    }
    EXPECT_EQ(read(file), kConfig); // without -i the file stays as it was
}

TEST_F(ProposalCli, WritesIntoFilesWithIAndO) {
    const QString file = write(u"config.pro"_s, kConfig);
    EXPECT_EQ(run({u"ghost"_s, u"-i"_s, file}).status, 0);
    EXPECT_EQ(run({u"ghost"_s, u"--in-place"_s, file}).status, 0);
    EXPECT_EQ(read(file), kConfig + crlf(ghostLines()) + crlf(ghostLines()));

    const QString out = path(u"neu.pro"_s);
    const CliRun r = run({u"proposal"_s, u"-o"_s, out});
    EXPECT_EQ(r.status, 0) << r.err.toStdString();
    EXPECT_TRUE(r.out.isEmpty());
    EXPECT_EQ(read(out), crlf(proposalLines()));
}

TEST_F(ProposalCli, RefusesWhatItCannotDo) {
    const QString file = write(u"config.pro"_s, kConfig);
    const struct {
        QStringList args;
        int status;
    } cases[] = {
        {{u"proposal"_s, path(u"fehlt.pro"_s)}, 1}, {{u"ghost"_s, u"-i"_s, path(u"fehlt.pro"_s)}, 1},
        {{u"proposal"_s, file, file}, 2},           {{u"proposal"_s, u"-i"_s}, 2}, // nothing to write back into
        {{u"ghost"_s, u"-i"_s, u"-"_s}, 2}, // standard input cannot be written back
        {{u"ghost"_s, u"-r"_s, file}, 2},   // no such flag
    };
    for (const auto& c : cases) {
        const CliRun r = run(c.args);
        EXPECT_EQ(r.status, c.status) << c.args.join(u' ').toStdString();
        EXPECT_TRUE(r.out.isEmpty()) << c.args.join(u' ').toStdString();
        EXPECT_FALSE(r.err.trimmed().isEmpty()) << c.args.join(u' ').toStdString();
    }
    EXPECT_EQ(read(file), kConfig);
}
