#pragma once

#include <QStringList>

// "kestrove-cli scan PATH... [--json]": what an import of each path would
// make, without converting anything.
class ScanCommand
{
public:
    static int run(const QStringList &args);
};
