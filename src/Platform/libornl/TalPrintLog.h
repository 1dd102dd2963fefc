#pragma once

#include "TalPrintLogGlobal.h"

#include <functional>
#include <memory>
#include <string>

/// Logging of the client.
namespace ornl {

/// One record as it was logged.
struct LogRecord {
    std::string strFile;      ///< source file, empty when none was named
    int nLine = 0;            ///< line in the source file
    std::string strFunction;  ///< function, empty when none was named
    std::string strTag;       ///< tag, mostly empty
    int nLevel = 0;           ///< 4 = information or success, 6 = failure
    std::string strMessage;   ///< the message after formatting
};

/// The log of the process: writes records to standard error and, once SetFile() named one, to a rotating file.
///
/// Every function may be called from any thread, even from static constructors and destructors, and throws nothing.
class ORNL_EXPORT TalPrintLog {
public:
    /// @return the log of the process, which is never destroyed
    static TalPrintLog& instance();

    TalPrintLog(const TalPrintLog&) = delete;
    TalPrintLog& operator=(const TalPrintLog&) = delete;

    /// Writes one record with a message of any length. If standard error is a closed pipe, the process continues; if it
    /// is a full pipe, the call blocks.
    ///
    /// @param file source file; may be null
    /// @param line line in the source file
    /// @param function function that logs; may be null
    /// @param tag tag; may be null or empty
    /// @param level 2 verbose, 3 debug, 4 information or success, 5 warning, 6 failure, 7 fatal
    /// @param format printf format of the message, followed by its arguments; null gives an empty message
    ORNL_PRINTF(7, 8)
    void Log(const char* file, int line, const char* function, const char* tag, int level, const char* format, ...);

    /// Replaces the observer.
    ///
    /// It is called once for each record, on the thread that logs and without a lock held, so it may log and replace
    /// itself. A record that another thread is logging meanwhile may still reach the observer that was replaced.
    /// Exceptions of an observer are dropped.
    ///
    /// @param observer receives each record; an empty function removes the current one
    void SetObserver(std::function<void(const LogRecord&)> observer);

    /// Sets the rotating file to which records are written in addition to standard error; an empty name stops that.
    ///
    /// Missing folders are created. If the file cannot be opened, that is reported on standard error, which continues
    /// to receive all records. A file that is deleted, moved or replaced later is opened again by the next record.
    ///
    /// @param strFileName path in UTF-8
    void SetFile(const std::string& strFileName);

private:
    TalPrintLog();
    ~TalPrintLog();

    class Private;
    const std::unique_ptr<Private> d;
};

}  // namespace ornl
