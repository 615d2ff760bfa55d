#pragma once

#include <QDir>
#include <QFile>
#include <QList>
#include <QMultiMap>
#include <QString>

// What /proc says about the encoders a test started.

struct ProcEntry
{
    qint64 pid = 0;
    qint64 parent = 0;
    QByteArray name; // the kernel keeps at most 15 characters
    char state = '?';
};

inline QList<ProcEntry> processTable()
{
    QList<ProcEntry> table;
    for (const QString &entry : QDir(QStringLiteral("/proc")).entryList(QDir::Dirs)) {
        QFile stat(QStringLiteral("/proc/%1/stat").arg(entry));
        if (entry.toLongLong() <= 0 || !stat.open(QIODevice::ReadOnly))
            continue;
        const QByteArray text = stat.readAll();
        const int open = text.indexOf('('), close = text.lastIndexOf(')');
        const QList<QByteArray> fields = text.mid(close + 2).split(' ');
        if (open >= 0 && fields.size() >= 2 && !fields[0].isEmpty())
            table.append({entry.toLongLong(), fields[1].toLongLong(),
                          text.mid(open + 1, close - open - 1), fields[0].at(0)});
    }
    return table;
}

// The process and every descendant of it.
inline QList<qint64> processTree(qint64 root)
{
    QMultiMap<qint64, qint64> children;
    for (const ProcEntry &entry : processTable())
        children.insert(entry.parent, entry.pid);
    QList<qint64> tree{root};
    for (int i = 0; i < tree.size(); ++i)
        tree += children.values(tree[i]);
    return tree;
}

// '?' for a process that is gone.
inline char processState(qint64 pid)
{
    for (const ProcEntry &entry : processTable())
        if (entry.pid == pid)
            return entry.state;
    return '?';
}

// Gone, or a zombie: ended either way.
inline bool processEnded(qint64 pid)
{
    return QByteArrayLiteral("?Z").contains(processState(pid));
}

// Live (not zombie) children of `parent` with the command name `name`.
inline QList<qint64> childrenNamed(qint64 parent, const QByteArray &name)
{
    QList<qint64> found;
    for (const ProcEntry &entry : processTable())
        if (entry.parent == parent && entry.state != 'Z' && entry.name == name.left(15))
            found.append(entry.pid);
    return found;
}

// An ffmpeg that reads every input at its own speed (-re), for
// KESTROVE_FFMPEG: a conversion then takes as long as its input plays,
// however busy the machine is. Its path, or empty where it can't be written.
inline QString writePacedFfmpeg(const QString &folder)
{
    QFile script(folder + QStringLiteral("/paced-ffmpeg"));
    if (!script.open(QIODevice::WriteOnly)
        || script.write("#!/bin/bash\nargs=()\nfor a in \"$@\"; do [ \"$a\" = -i ] && "
                        "args+=(-re); args+=(\"$a\"); done\nexec ffmpeg \"${args[@]}\"\n")
               < 0)
        return {};
    script.close();
    return script.setPermissions(QFile::ReadOwner | QFile::ExeOwner) ? script.fileName() : QString();
}
