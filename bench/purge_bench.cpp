// The purge analysis and the dry-run tree purge as whole processes, for purge_bench.sh to time
// against ls/sort and find on the same folders.
//   purge_bench analyse DIR   analyses one folder, prints the number of files listed
//   purge_bench tree DIR      dry-run purge of the whole tree, prints every file that would go
//   purge_bench deepfind N    the file finder down a chain of N nested folders, prints the time
#include "cadfiles/findfile.h"
#include "cadfiles/purgeanalysis.h"
#include "cadfiles/purgetree.h"

#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QTemporaryDir>

#include <cstdio>

namespace {

// A search that resolved each folder's path component by component grew with the cube of the
// depth; one status call per folder keeps it linear.
int deepFind(int levels, QFile& out) {
    QTemporaryDir root;
    QString path = root.path();
    for (int level = 0; level < levels; ++level) {
        path += QStringLiteral("/k");
        if (!QDir().mkdir(path))
            return 1;
    }
    QFile bottom(path + QStringLiteral("/tief.prt.1"));
    if (!bottom.open(QIODevice::WriteOnly))
        return 1;
    bottom.close();
    quenfor::cFindFile finder;
    int hits = 0;
    finder.onMatchFound([&hits](auto&&...) { ++hits; });
    finder.setSSearchpath(root.path());
    finder.setSFileToFind(QStringLiteral("tief.prt*"));
    QElapsedTimer clock;
    clock.start();
    finder.sStartSearch();
    const qint64 ms = clock.elapsed();
    out.write(QByteArray::number(levels) + " Ebenen: " + QByteArray::number(ms) + " ms, " + QByteArray::number(hits) +
              " Treffer\n");
    return hits == 1 ? 0 : 1;
}

} // namespace

int main(int argc, char* argv[]) {
    QCoreApplication app(argc, argv);
    const QStringList args = QCoreApplication::arguments();
    if (args.size() != 3)
        return 2;
    QFile out;
    if (!out.open(stdout, QIODevice::WriteOnly))
        return 1;
    if (args[1] == QLatin1String("deepfind"))
        return deepFind(args[2].toInt(), out);
    if (args[1] == QLatin1String("analyse")) {
        out.write(QByteArray::number(quenfor::analyseFolder(args[2]).size()) + '\n');
        return 0;
    }
    quenfor::TreeRun run(args[2], {quenfor::TreeTask::Purge, {}, true, true});
    run.runToEnd();
    QByteArray text;
    for (const QString& path : run.result().listed)
        text += path.toUtf8() + '\n';
    out.write(text);
    return run.result().error.isEmpty() ? 0 : 1;
}
