#pragma once

#include <QtGlobal>

#include <cstdio>
#include <unistd.h>
#include <vector>

// Runs the test again under a session bus of its own, never the user's.
// Returns only in the re-run process; on failure the process exits.
inline void runOnPrivateBus(int argc, char *argv[])
{
    if (qEnvironmentVariableIsSet("KESTROVE_PRIVATE_BUS"))
        return;
    qputenv("KESTROVE_PRIVATE_BUS", "1");
    std::vector<char *> args{const_cast<char *>("dbus-run-session"), const_cast<char *>("--")};
    args.insert(args.end(), argv, argv + argc);
    args.push_back(nullptr);
    execvp(args[0], args.data());
    std::perror("dbus-run-session (install Debian's dbus)");
    std::exit(1);
}
