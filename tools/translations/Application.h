#pragma once

#include <QCoreApplication>
#include <QString>

#include <memory>
#include <vector>

class QTranslator;

namespace translation {

/// The folder of the translations, relative to the folder of the program.
QString Folder();

/// The application object of a command-line program. Loads the translations for the language of the environment:
/// LANGUAGE, or else LC_ALL, LC_MESSAGES or LANG. Texts without a translation stay English.
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
