#include "Application.h"

#include <QLocale>
#include <QTranslator>

#include <clocale>

namespace translation {

QString Folder()
{
    return QCoreApplication::applicationDirPath() + QLatin1String("/../share/apimodule/translations");
}

Application::Application(int& argc, char** argv) : m_application(argc, argv)
{
    // QCoreApplication sets the locale from the environment, but numbers must be formatted the same in every language.
    std::setlocale(LC_NUMERIC, "C");

    for (const char* name : {"apimodule", "tools"}) {
        auto translator = std::make_unique<QTranslator>();
        if (translator->load(QLocale::system(), QLatin1String(name), QStringLiteral("_"), Folder())) {
            QCoreApplication::installTranslator(translator.get());
            m_translators.push_back(std::move(translator));
        }
    }
}

Application::~Application() = default;

}  // namespace translation
