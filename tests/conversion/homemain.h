#pragma once

#include "testhome.h"

#include <QGuiApplication>
#include <QTest>

// main() of a test that runs in a home of its own, its temporary files there
// too. Watermark and subtitle settings read the application's font, hence a
// GUI application.
#define KESTROVE_HOME_MAIN(TestClass)                                                              \
    int main(int argc, char *argv[])                                                               \
    {                                                                                              \
        TestHome home;                                                                             \
        qputenv("TMPDIR", home.path().toLocal8Bit());                                              \
        QGuiApplication app(argc, argv);                                                           \
        TestClass test;                                                                            \
        return QTest::qExec(&test, argc, argv);                                                    \
    }
