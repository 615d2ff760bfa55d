#pragma once

#include <QString>

#include <memory>
#include <thread>

class DvdTitleReader;

// Copies one DVD title, as an MPEG program stream, into a pipe that ffmpeg
// reads from. The copy runs on a thread of its own while ffmpeg runs.
class TitleFeeder
{
public:
    TitleFeeder();
    ~TitleFeeder();
    TitleFeeder(const TitleFeeder &) = delete;
    TitleFeeder &operator=(const TitleFeeder &) = delete;

    // False with `error` set when the title can't be read.
    bool open(const QString &ifoPath, int pgcIndex, QString *error);
    // ffmpeg's stream specifier of the title's audio or subtitle track n;
    // empty when the title has no such track.
    QString audioSpecifier(int track) const;
    QString subtitleSpecifier(int track) const;

    // The end ffmpeg reads from; valid after open().
    int readEnd() const { return pipeFds[0]; }
    // Starts copying; closes our copy of the read end first.
    void start();
    // Stops copying and waits for the thread.
    void finish();

private:
    void copy();

    std::unique_ptr<DvdTitleReader> reader;
    int pipeFds[2] = {-1, -1};
    std::thread worker;
};
