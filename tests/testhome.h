#pragma once

#include <QTemporaryDir>

// Gives the process (and the processes it starts) a fresh home folder, so
// that the settings store and the user's folders of a test are its own.
// Make it before the application object, keep it for the process's life.
class TestHome
{
public:
    TestHome()
    {
        qputenv("HOME", dir.path().toLocal8Bit());
        qunsetenv("XDG_CONFIG_HOME");
        qunsetenv("XDG_DATA_HOME");
    }
    QString path() const { return dir.path(); }

private:
    QTemporaryDir dir;
};
