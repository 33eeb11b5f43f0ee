// The library's file choosers over the common Open and Save dialogs: save a
// file, open a file by purpose code, browse for a file, and the USE line
// that opening a data file queues.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "core/seam.h"

namespace kvs {

inline constexpr std::size_t kFileRecordCapacity = 256;

// What one purpose remembers of the file opened for it: the path (at most
// 255 characters), its capacity and whether it holds an accepted file.
struct FileRecord {
    std::string path;
    std::int32_t capacity = static_cast<std::int32_t>(kFileRecordCapacity);
    std::int32_t state = 0;  // 1: the record holds an accepted file
};

// Purpose codes of openAFile.
inline constexpr int kOpenOutput = 30;
inline constexpr int kOpenTimeData = 279;
inline constexpr int kOpenData = 721;
inline constexpr int kOpenGraph = 722;
inline constexpr int kOpenLast = 723;
inline constexpr int kOpenCommand = 728;
// The owner's control that shows the time dialog's data file.
inline constexpr int kTimeDataFileControl = 635;

// "Save a File" with the data filter. On OK the chosen path is left in path
// and recorded as the last saved name; on Cancel path is left as it was.
bool saveAFile(WindowRef owner, std::string& path);

// A save chooser with the data filter under another title; the last saved
// name is not touched. On Cancel path is left as it was.
bool chooseSaveFile(WindowRef owner, std::string_view title, std::string& path);

// The name recorded by the last successful saveAFile (at most 129 characters).
const std::string& savedFileName();

// "Open a File" for a purpose code. The chosen file goes into the purpose's
// record; code 279 shows it in control 635 of the owner, every other code
// queues USE for it. No library dialog may start meanwhile. Always 1.
int openAFile(DialogView& owner, int purpose);

// Queues "USE '<path>'" for the record of a purpose when it holds an
// accepted data file. True when a line was queued.
bool queueUse(int purpose);

// The record a purpose code opens into, or null for codes that reuse the
// record of the last open (which is forgotten after every open).
const FileRecord* fileRecord(int purpose);

// "Browse for a File" with the data filter, starting from the remembered
// name. On OK the path goes into result (at most capacity - 1 characters)
// and into control controlId of the owner. False when cancelled.
bool browseForAFile(DialogView& owner, std::string& result, std::size_t capacity, const std::string& remembered,
                    int controlId);

// The data-file check of the data dialogs: the host can list variables of
// the file.
bool isDataFile(const std::string& path);

void resetFileChoosers();

}  // namespace kvs
