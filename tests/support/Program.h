#pragma once

#include <QByteArray>
#include <QMap>
#include <QProcess>
#include <QString>
#include <QStringList>

#include <string>

namespace testing_support {

/// How a program ended.
struct Ended {
    bool crashed = false;
    int status = -1;
    std::string out = {};
    std::string err = {};
};

/// Variables of a program's environment that differ from those of the test; a null one is taken away.
using Variables = QMap<QString, QString>;

/// Runs a program, which must end within minutes.
Ended RunProgram(const QString& program, const QStringList& arguments, const Variables& variables = {},
                 const QByteArray& input = {});

/// A server that runs beside the test and prints its ports. Its error output is part of its output.
class RunningProgram {
public:
    RunningProgram(const QString& program, const QStringList& arguments, const Variables& variables = {});
    /// Ends it where it still runs.
    ~RunningProgram();
    RunningProgram(const RunningProgram&) = delete;
    RunningProgram& operator=(const RunningProgram&) = delete;

    /// Waits until the text is printed. @return false when the program ends before
    bool WaitFor(const std::string& text);
    /// Waits for the line that starts with the scheme. @return the port in that line
    int Port(const std::string& scheme);
    void Signal(int number) const;
    /// Waits for the end. @return the status, -1 when the program crashed or does not end
    int ExitStatus();

    [[nodiscard]] qint64 ProcessId() const { return m_process.processId(); }
    /// What it has printed so far, as far as a call above has waited for it.
    [[nodiscard]] const std::string& Output() const { return m_output; }

private:
    bool ReadSome();

    QProcess m_process;
    std::string m_output;
};

}  // namespace testing_support
