#pragma once

#include <QByteArray>
#include <QMap>
#include <QProcess>
#include <QString>
#include <QStringList>

#include <string>

namespace testing_support {

/// How a program ended.
struct ProgramResult {
    bool crashed = false;
    int status = -1;
    std::string out = {};
    std::string err = {};
};

/// Environment variables of a program that differ from those of the test; a null value removes the variable.
using Variables = QMap<QString, QString>;

/// Runs a program, which must end within minutes.
ProgramResult RunProgram(const QString& program, const QStringList& arguments, const Variables& variables = {},
                         const QByteArray& input = {});

/// A server program that runs during the test and prints its ports. Its output includes standard error.
class RunningProgram {
public:
    RunningProgram(const QString& program, const QStringList& arguments, const Variables& variables = {});
    /// Terminates the program if it is still running.
    ~RunningProgram();
    RunningProgram(const RunningProgram&) = delete;
    RunningProgram& operator=(const RunningProgram&) = delete;

    /// Waits until the text is printed. @return false if the program ends first
    bool WaitFor(const std::string& text);
    /// Waits for the line that starts with the scheme. @return the port in that line
    int Port(const std::string& scheme);
    void Signal(int number) const;
    /// Waits for the program to end. @return the status, -1 if it crashed or does not end
    int ExitStatus();

    [[nodiscard]] qint64 ProcessId() const { return m_process.processId(); }
    /// The output that the calls above have read so far.
    [[nodiscard]] const std::string& Output() const { return m_output; }

private:
    bool ReadSome();

    QProcess m_process;
    std::string m_output;
};

}  // namespace testing_support
