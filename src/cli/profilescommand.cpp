#include "profilescommand.h"

#include "cliparser.h"
#include "profilegrouploader.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

int ProfilesCommand::run(const QStringList &args)
{
    CliParser cli(QStringLiteral("profiles"), QStringLiteral("[--search TEXT] [--json]"),
                  QStringLiteral("Lists the groups and profiles of the catalogue, the user's own "
                                 "included, with the keys that convert --profile takes."));
    cli.options().addOption({QStringLiteral("search"),
                             QStringLiteral("Only profiles whose name, extension or description "
                                            "holds TEXT (ignoring case)."),
                             QStringLiteral("TEXT")});
    cli.options().addOption({QStringLiteral("json"), QStringLiteral("Prints one JSON document.")});
    if (const int status = cli.parse(args); status >= 0)
        return status;
    if (!cli.positional().isEmpty())
        return cli.usageError(
            QStringLiteral("unexpected argument '%1'").arg(cli.positional().front()));
    const bool searching = cli.isSet(QStringLiteral("search"));
    const QString search = cli.value(QStringLiteral("search"));

    const ProfileGroupLoader *catalogue = ProfileGroupLoader::instance();
    QJsonArray groups;
    QString text;
    for (const QDomNode &group : catalogue->groups()) {
        const QString groupId = childValue(group, QStringLiteral("Id"));
        const QString groupName = childValue(group, QStringLiteral("Name"));
        QJsonArray profiles;
        QString lines;
        const QDomNodeList entries = catalogue->profiles(group);
        for (int i = 0; i < entries.size(); ++i) {
            const QDomNode profile = entries.at(i);
            if (searching && !ProfileGroupLoader::matchesSearch(profile, search))
                continue;
            const QString key = ProfileGroupLoader::profileKey(
                groupId, childValue(profile, QStringLiteral("Id")));
            const QString name = childValue(profile, QStringLiteral("Name"));
            const QString extension = childValue(profile, QStringLiteral("ExtName"));
            const bool recommended = !childValue(profile, QStringLiteral("Recommended")).isEmpty();
            profiles.append(QJsonObject{{QStringLiteral("key"), key},
                                        {QStringLiteral("name"), name},
                                        {QStringLiteral("ext"), extension},
                                        {QStringLiteral("recommended"), recommended}});
            lines += QStringLiteral("  %1  %2 (*.%3)%4\n")
                         .arg(key.leftJustified(7), name, extension,
                              recommended ? QStringLiteral("  [recommended]") : QString());
        }
        // A search shows only the groups with hits.
        if (searching && profiles.isEmpty())
            continue;
        groups.append(QJsonObject{{QStringLiteral("id"), groupId.toInt()},
                                  {QStringLiteral("name"), groupName},
                                  {QStringLiteral("profiles"), profiles}});
        text += QStringLiteral("%1 %2\n").arg(groupId, groupName) + lines;
    }
    if (cli.isSet(QStringLiteral("json")))
        printOut(QString::fromUtf8(
            QJsonDocument(QJsonObject{{QStringLiteral("groups"), groups}}).toJson()));
    else
        printOut(text);
    return ExitSuccess;
}
