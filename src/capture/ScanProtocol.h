#pragma once

#include "capture/SaneScanner.h"

#include <QByteArray>
#include <QDataStream>
#include <QIODevice>
#include <QImage>

namespace kartella {

// What the program and its scanning process (kartella-scanner) say to each other over the
// process's standard input and output: frames of a length, a message and its values.
// SANE and its backends run in that process, so that a backend that hangs or crashes (some
// stop their reader thread in a way that can leave a lock held) costs the process, not the program.
enum class ScanMessage : quint8 {
    // to the scanning process
    Find,
    Open, // device
    SetOption, // name, value
    Scan, // settings, whole feeder
    Cancel,
    Quit,
    // back from it
    Found, // devices, message
    Opened, // choices, message
    Page, // image
    Ended, // cancelled, message
    Reading, // the scanner is sending a page: sent now and then while it does
};

QByteArray scanFrame(ScanMessage message, const QByteArray& values = {});
// Takes the first whole frame off buffer; false while it has none yet.
bool takeScanFrame(QByteArray* buffer, ScanMessage* message, QByteArray* values);

QDataStream& operator<<(QDataStream& stream, const ScannerDevice& device);
QDataStream& operator>>(QDataStream& stream, ScannerDevice& device);
QDataStream& operator<<(QDataStream& stream, const ScannerChoices& choices);
QDataStream& operator>>(QDataStream& stream, ScannerChoices& choices);
QDataStream& operator<<(QDataStream& stream, const ScanSettings& settings);
QDataStream& operator>>(QDataStream& stream, ScanSettings& settings);

// A scanned page as its pixels (QDataStream's own QImage would compress it to PNG).
void writeScanImage(QDataStream& stream, const QImage& image);
QImage readScanImage(QDataStream& stream);

// Packs values into a frame's bytes.
template<typename... Values>
QByteArray scanValues(const Values&... values)
{
    QByteArray bytes;
    QDataStream stream(&bytes, QIODevice::WriteOnly);
    (stream << ... << values);
    return bytes;
}

// Runs the scanning process: reads requests from standard input until Quit or its end,
// answers on standard output. libraryName replaces libsane.so.1 when not empty.
int serveScanner(const QString& libraryName);

} // namespace kartella
