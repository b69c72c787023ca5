// The purge analysis and the dry-run tree purge as whole processes, for purge_bench.sh to time
// against ls/sort and find on the same folders.
//   purge_bench analyse DIR   analyses one folder, prints the number of files listed
//   purge_bench tree DIR      dry-run purge of the whole tree, prints every file that would go
#include "cadfiles/purgeanalysis.h"
#include "cadfiles/purgetree.h"

#include <QCoreApplication>
#include <QFile>

#include <cstdio>

int main(int argc, char* argv[]) {
    QCoreApplication app(argc, argv);
    const QStringList args = QCoreApplication::arguments();
    if (args.size() != 3)
        return 2;
    QFile out;
    if (!out.open(stdout, QIODevice::WriteOnly))
        return 1;
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
