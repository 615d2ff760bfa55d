#include "scancommand.h"

#include "cliparser.h"
#include "mediajson.h"
#include "sourceimport.h"
#include "tasklist.h"
#include "utils.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace {

QString secondsText(double seconds)
{
    return QString::number(seconds, 'f', 2);
}

QString titleLine(const QJsonObject &title)
{
    QStringList chapters;
    for (const auto &start : title.value(QStringLiteral("chapters")).toArray())
        chapters << secondsText(start.toDouble());
    QStringList audio, subtitles;
    for (const auto &label : title.value(QStringLiteral("audio")).toArray())
        audio << label.toString();
    for (const auto &label : title.value(QStringLiteral("subtitles")).toArray())
        subtitles << label.toString();
    const QString none = QStringLiteral("none");
    return QStringLiteral("  %1  %2 pgc %3  %4 s\n    chapters at %5\n    audio: %6\n"
                          "    subtitles: %7\n")
        .arg(title.value(QStringLiteral("name")).toString(),
             title.value(QStringLiteral("ifo")).toString())
        .arg(title.value(QStringLiteral("pgc")).toInt())
        .arg(secondsText(title.value(QStringLiteral("duration")).toDouble()),
             chapters.join(QStringLiteral(", ")),
             audio.isEmpty() ? none : audio.join(QStringLiteral("; ")),
             subtitles.isEmpty() ? none : subtitles.join(QStringLiteral("; ")));
}

QString mediaLines(const QJsonObject &media)
{
    QString text;
    for (auto it = media.begin(); it != media.end(); ++it) {
        const QJsonValue value = it.value();
        QString shown;
        if (value.isArray())
            shown
                = QString::fromUtf8(QJsonDocument(value.toArray()).toJson(QJsonDocument::Compact));
        else
            shown = value.toVariant().toString();
        text += QStringLiteral("  %1: %2\n").arg(it.key(), shown);
    }
    return text;
}

} // namespace

int ScanCommand::run(const QStringList &args)
{
    CliParser cli(QStringLiteral("scan"), QStringLiteral("[--json] PATH..."),
                  QStringLiteral("Shows what an import of each path makes: the titles of a DVD "
                                 "(a disc folder, VIDEO_TS, an IFO file, a mounted disc) or the "
                                 "probe of a media file."));
    cli.options().addOption({QStringLiteral("json"), QStringLiteral("Prints one JSON document.")});
    cli.options().addPositionalArgument(QStringLiteral("PATH"),
                                        QStringLiteral("A disc, folder, IFO file or media file."),
                                        QStringLiteral("PATH..."));
    if (const int status = cli.parse(args); status >= 0)
        return status;
    const QStringList paths = cli.positional();
    if (paths.isEmpty())
        return cli.usageError(QStringLiteral("no PATH given"));

    TaskList list;
    const QList<ImportedSource> imported = importSources(list, QString(), paths);
    QJsonArray sources;
    QString text;
    bool failed = false;
    for (const ImportedSource &source : imported) {
        QJsonObject entry{
            {QStringLiteral("path"), source.path},
            {QStringLiteral("kind"), source.disc ? QStringLiteral("dvd") : QStringLiteral("file")}};
        if (!source.error.isEmpty()) {
            failed = true;
            entry.insert(QStringLiteral("error"), source.error);
            CliParser::error(QStringLiteral("%1: %2").arg(source.path, source.error));
        }
        if (source.disc) {
            QJsonArray titles;
            for (int id : source.taskIds)
                titles.append(titleJson(*list.byId(id)->item(0)));
            entry.insert(QStringLiteral("titles"), titles);
            text += QStringLiteral("%1: DVD, %2 title(s)\n").arg(source.path).arg(titles.size());
            for (const auto &title : titles)
                text += titleLine(title.toObject());
        } else if (!source.taskIds.isEmpty()) {
            const QJsonObject media = mediaInfoJson(*list.byId(source.taskIds.front())->item(0));
            entry.insert(QStringLiteral("media"), media);
            text += QStringLiteral("%1: media file, %2\n")
                        .arg(source.path, Utils::durationText(
                                              media.value(QStringLiteral("duration")).toDouble()));
            text += mediaLines(media);
        }
        sources.append(entry);
    }
    if (cli.isSet(QStringLiteral("json")))
        printOut(QString::fromUtf8(
            QJsonDocument(QJsonObject{{QStringLiteral("sources"), sources}}).toJson()));
    else
        printOut(text);
    return failed ? ExitSomeFailed : ExitSuccess;
}
