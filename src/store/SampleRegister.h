#pragma once

#include "platform/Clock.h"

#include <QDate>
#include <QString>

namespace kartella {

struct SampleOptions
{
    // Documents to register, spread over the last three months before today.
    int documents = 400;
    // The day the sample counts back from.
    QDate today = Clock::currentDate();
    // Seed of the generator: the same seed gives the same register.
    quint32 seed = 20240305;
    // How many documents get a real file on disk, in the folder FilesFolder(path);
    // -1 lets the generator choose a part of them.
    int filesOnDisk = -1;
};

// The folder beside a register that holds its sample files: "<folder>/<base name> files".
QString sampleFilesFolder(const QString& registerPath);

// Fills an existing, empty register (made by createRegister) with realistic data:
// categories with mnemonics, folders and subcategories; contacts with Lithuanian names,
// phones and web pages; documents in all four directions, some without contact, file,
// category or notes; related documents; reminders. Throws kartella::Error on failure.
void fillSampleRegister(const QString& registerPath, const SampleOptions& options = {});

} // namespace kartella
