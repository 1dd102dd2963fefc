#pragma once

#include <QCoreApplication>
#include <QString>

#include <memory>
#include <vector>

class QTranslator;

namespace translation {

/// Where the translations lie, beside the folder of the program.
QString Folder();

/// The application object of a program for the shell, which speaks the language of the environment: LANGUAGE, or else
/// LC_ALL, LC_MESSAGES or LANG. It speaks English where there is no translation.
class Application {
public:
    Application(int& argc, char** argv);
    Application(const Application&) = delete;
    Application& operator=(const Application&) = delete;
    Application(Application&&) = delete;
    Application& operator=(Application&&) = delete;
    ~Application();

private:
    const QCoreApplication m_application;
    std::vector<std::unique_ptr<QTranslator>> m_translators;
};

}  // namespace translation
