#pragma once

#include <QString>

#include <memory>
#include <thread>
#include <vector>

class DvdTitleReader;

// Copies one DVD title, as an MPEG program stream, into the pipes that
// ffmpeg reads from, one for each ffmpeg that reads it. The copy runs on a
// thread of its own while ffmpeg runs.
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
    int readEnd() const { return pipes.front().read; }
    // One more reader of the same bytes; -1 when no pipe could be made.
    int addReader();
    // Starts copying; closes our copies of the read ends first.
    void start();
    // Stops copying and waits for the thread.
    void finish();

    // After finish(): the title (PGC) fed, the blocks left out as unreadable,
    // and why the title was not read whole (empty when it was, or when
    // ffmpeg stopped reading first).
    int pgc() const { return titlePgc; }
    qint64 skippedBlocks() const;
    QString error() const { return failure; }

private:
    void copy();

    struct Pipe
    {
        int read = -1;
        int write = -1;
    };
    std::unique_ptr<DvdTitleReader> reader;
    std::vector<Pipe> pipes;
    std::thread worker;
    int titlePgc = -1;
    QString failure;
};
