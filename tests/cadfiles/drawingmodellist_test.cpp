#include "cadfiles/drawingmodellist.h"

#include "../common/qstringprinting.h"
#include "cadfiles/drawingfoldercheck.h"
#include "drawingfixture.h"
#include "modellistfixture.h"

#include <QBuffer>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <map>

using namespace Qt::StringLiterals;
using namespace quenfor;
using namespace modellistfixture;

namespace {

QByteArray withByteAt(QByteArray bytes, qsizetype at, char value) {
    bytes[at] = value;
    return bytes;
}

QStringList readFromBytes(const QByteArray& bytes, const QString& codepage = u"windows-1252"_s) {
    QBuffer buffer;
    buffer.setData(bytes);
    if (!buffer.open(QIODevice::ReadOnly))
        return {u"<buffer>"_s};
    return readDrawingModelList(buffer, codepage);
}

struct ListCase {
    const char* label;
    QByteArray bytes;
    QStringList names;
};

void PrintTo(const ListCase& c, std::ostream* os) {
    *os << c.label;
}

class ModelListTest : public ::testing::TestWithParam<ListCase> {};

TEST_P(ModelListTest, ReadsWhatTheDrawingLists) {
    const ListCase& c = GetParam();
    EXPECT_EQ(readFromBytes(c.bytes), c.names);
}

const QByteArray kOneModel = currentDrawing({packedSection(), modelsSection({"GEHAEUSE.PRT"}), objectsSection()});
const qsizetype kListAt = kOneModel.indexOf("model_names");

INSTANTIATE_TEST_SUITE_P(
    Layouts, ModelListTest,
    ::testing::Values(
        ListCase{"one model", kOneModel, {u"GEHAEUSE.PRT"_s}},
        ListCase{"several models in order",
                 currentDrawing({modelsSection({"GEHAEUSE.PRT", "DECKEL.PRT", "BAUGRUPPE.ASM"})}),
                 {u"GEHAEUSE.PRT"_s, u"DECKEL.PRT"_s, u"BAUGRUPPE.ASM"_s}},
        ListCase{"model list first", currentDrawing({modelsSection({"A.PRT"}), packedSection()}), {u"A.PRT"_s}},
        ListCase{"no model in the list", currentDrawing({packedSection(), modelsSection({})}), {}},
        ListCase{"under the chained second table",
                 currentDrawing({packedSection(), objectsSection()}, {objectsSection(), modelsSection({"WELLE.ASM"})}),
                 {u"WELLE.ASM"_s}},
        ListCase{"no model section", currentDrawing({packedSection(), objectsSection()}), {}},
        ListCase{"no model section in two tables", currentDrawing({packedSection()}, {objectsSection()}), {}},
        ListCase{"older release with the name at 725", drawingfixture::drawingBytes("BRACKET "), {}}));

// Damaged drawings claim no model at all rather than a wrong one, and never crash or hang.
INSTANTIATE_TEST_SUITE_P(
    Damaged, ModelListTest,
    ::testing::Values(
        ListCase{"empty file", "", {}}, ListCase{"three bytes", "#UG", {}},
        ListCase{"header only", textHeader("x.drw"), {}},
        ListCase{"header and release line", textHeader("x.drw") + "#Creo  TM  7.0\n", {}},
        ListCase{"cut inside the table of contents", kOneModel.left(kOneModel.indexOf("Dwg_Models") + 5), {}},
        ListCase{"cut inside the section", kOneModel.left(kListAt + 15), {}},
        ListCase{"cut before the closing byte", kOneModel.left(kListAt + 12 + 2 + 13), {}},
        ListCase{"closing byte missing", withByteAt(kOneModel, kListAt + 12 + 2 + 13, 'X'), {}},
        ListCase{"list marker missing", withByteAt(kOneModel, kListAt + 12, 'X'), {}},
        ListCase{"more names counted than stored", withByteAt(kOneModel, kListAt + 13, 2), {}},
        ListCase{"count too large for one byte", withByteAt(kOneModel, kListAt + 13, char(0x90)), {}},
        ListCase{"control character in a name", withByteAt(kOneModel, kListAt + 16, '\x01'), {}},
        ListCase{"section name line broken", withByteAt(kOneModel, kOneModel.indexOf("#Dwg_Models\n") + 3, 'x'), {}},
        ListCase{"offset past the end",
                 textHeader("x.drw") + "#Creo\n" + tocHead(1) + tocEntry("Dwg_Models", 0x7fffffffffff, 40),
                 {}},
        ListCase{"huge entry count",
                 textHeader("x.drw") + "#Creo\n" + padded("#UGC_TOC 2 999999999999 81 17", 80, '#') + '\n',
                 {}},
        ListCase{
            "entry length zero", textHeader("x.drw") + "#Creo\n" + padded("#UGC_TOC 2 1 0 17", 80, '#') + '\n', {}},
        ListCase{"table of contents pointing to itself",
                 textHeader("x.drw") + "#Creo\n" + tocHead(1) + tocEntry("NEXT_TOC_ENTRY", 6, 162),
                 {}},
        ListCase{"binary noise", QByteArray(20000, '\xF8'), {}}));

TEST(ModelList, NamesDecodeAsUtf8OrWithTheCodepage) {
    EXPECT_EQ(readFromBytes(currentDrawing({modelsSection({"GEH\xC3\x84USE.PRT"})})), QStringList{u"GEHÄUSE.PRT"_s});
    const QByteArray latin = currentDrawing({modelsSection({"GEH\xC4USE.PRT"})});
    EXPECT_EQ(readFromBytes(latin), QStringList{u"GEHÄUSE.PRT"_s});
    EXPECT_EQ(readFromBytes(latin, u"windows-1251"_s), QStringList{u"GEHДUSE.PRT"_s});
}

// A drawing as big as a disk: only the header, the tables on the way and the section are read.
class SparseDevice : public QIODevice {
public:
    SparseDevice(qint64 size, std::map<qint64, QByteArray> pieces) : m_size(size), m_pieces(std::move(pieces)) {}
    qint64 size() const override { return m_size; }
    bool isSequential() const override { return false; }
    qint64 bytesRead = 0;

protected:
    qint64 readData(char* data, qint64 maxSize) override {
        const qint64 at = pos();
        const qint64 n = std::min(maxSize, m_size - at);
        std::fill(data, data + n, '\0');
        for (const auto& [offset, bytes] : m_pieces) {
            const qint64 from = std::max(at, offset);
            const qint64 to = std::min(at + n, offset + qint64(bytes.size()));
            if (from < to)
                std::copy(bytes.constData() + (from - offset), bytes.constData() + (to - offset), data + (from - at));
        }
        bytesRead += n;
        return n;
    }
    qint64 writeData(const char*, qint64) override { return -1; }

private:
    qint64 m_size;
    std::map<qint64, QByteArray> m_pieces;
};

TEST(ModelList, AHugeFileIsNotReadWhole) {
    // The first table points to a second one 6 GiB into the file, which holds the model list.
    const QByteArray head = textHeader("riesig.drw");
    const QByteArray data = "#Creo  TM  7.0\n";
    const qint64 farAway = qint64(6) << 30;
    const QByteArray section = modelSection({"RIESIG.ASM"});
    const QByteArray secondToc = tocHead(1) + tocEntry("Dwg_Models", farAway + 162, section.size());
    const QByteArray firstToc = tocHead(1) + tocEntry("NEXT_TOC_ENTRY", farAway, secondToc.size());
    const qint64 base = head.size();
    SparseDevice device(qint64(8) << 30,
                        {{0, head + data + firstToc}, {base + farAway, secondToc}, {base + farAway + 162, section}});
    // Unbuffered, so the count is what the reader asked for, not what a buffer read ahead.
    ASSERT_TRUE(device.open(QIODevice::ReadOnly | QIODevice::Unbuffered));
    EXPECT_EQ(readDrawingModelList(device), QStringList{u"RIESIG.ASM"_s});
    EXPECT_LT(device.bytesRead, 16 * 1024);
}

TEST(ModelList, FilesAndTheCheck) {
    QTemporaryDir dir;
    const QString path = drawingfixture::writeFile(dir.path(), u"gehaeuse.drw.3"_s, kOneModel);
    EXPECT_EQ(readDrawingModelList(path), QStringList{u"GEHAEUSE.PRT"_s});
    EXPECT_TRUE(readDrawingModelList(dir.filePath(u"fehlt.drw"_s)).isEmpty());
    EXPECT_TRUE(readDrawingModelList(dir.path()).isEmpty());

    // The designed rule keeps its result; the list comes beside it.
    const DrawingCheck check = checkDrawingWithModelList(path);
    EXPECT_EQ(check.read, DrawingRead::ShortHeader);
    EXPECT_TRUE(check.modelName.isEmpty());
    EXPECT_FALSE(check.matches);
    EXPECT_EQ(check.listedModels, QStringList{u"GEHAEUSE.PRT"_s});

    const QString old =
        drawingfixture::writeFile(dir.path(), u"bracket.drw"_s, drawingfixture::drawingBytes("BRACKET "));
    const DrawingCheck oldCheck = checkDrawingWithModelList(old);
    EXPECT_TRUE(oldCheck.matches);
    EXPECT_TRUE(oldCheck.listedModels.isEmpty());
}

TEST(ModelList, TheFolderCheckCarriesEachDrawingsList) {
    QTemporaryDir dir;
    drawingfixture::writeFile(dir.path(), u"gehaeuse.drw.3"_s, kOneModel);
    drawingfixture::writeFile(dir.path(), u"welle.drw"_s, currentDrawing({modelsSection({"WELLE.PRT", "LAGER.ASM"})}));
    drawingfixture::writeFile(dir.path(), u"bracket.drw"_s, drawingfixture::drawingBytes("BRACKET "));
    const DrawingFolderCheck result = checkDrawingFolder(dir.path(), u"windows-1252"_s);
    ASSERT_EQ(result.checks.size(), 3);
    EXPECT_EQ(result.checks[0].listedModels, QStringList{});
    EXPECT_EQ(result.checks[1].listedModels, QStringList{u"GEHAEUSE.PRT"_s});
    EXPECT_EQ(result.checks[2].listedModels, (QStringList{u"WELLE.PRT"_s, u"LAGER.ASM"_s}));
    // The list of differing drawings follows the designed rule alone.
    EXPECT_EQ(result.differing, (QStringList{u"GEHAEUSE"_s, u"WELLE"_s}));
    EXPECT_EQ(result.differingModels, (QList<QStringList>{{u"GEHAEUSE.PRT"_s}, {u"WELLE.PRT"_s, u"LAGER.ASM"_s}}));
}

TEST(ModelList, Text) {
    EXPECT_EQ(drawingModelListText({}), u""_s);
    EXPECT_EQ(drawingModelListText({u"GEHAEUSE.PRT"_s}), u"Modelle laut Zeichnung: GEHAEUSE.PRT"_s);
    EXPECT_EQ(drawingModelListText({u"A.PRT"_s, u"B.ASM"_s}), u"Modelle laut Zeichnung: A.PRT, B.ASM"_s);
}

} // namespace
