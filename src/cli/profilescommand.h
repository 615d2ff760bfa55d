#pragma once

#include <QStringList>

// "kestrove-cli profiles [--search TEXT] [--json]": the catalogue with the
// keys that convert takes.
class ProfilesCommand
{
public:
    static int run(const QStringList &args);
};
