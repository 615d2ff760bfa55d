#pragma once

#include <QByteArray>

#include <string>

// libdvdread trusts the counts and offsets of an IFO file: a changed count can
// make it read out of bounds or follow a null program chain. This checks every
// table it reads, against the file and against the table that holds it,
// before it gets the file. Empty when the tables hold together; else what is
// damaged, as in "damaged program chain table".
// `videoManager`: VIDEO_TS.IFO rather than a VTS_nn_0.IFO.
std::string ifoDamage(const QByteArray &ifo, bool videoManager);
