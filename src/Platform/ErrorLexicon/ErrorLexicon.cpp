#include "ErrorLexicon.h"

#include <QDir>
#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>

#include <atomic>
#include <map>
#include <unordered_map>

namespace ErrorLexicon {
namespace {

using Texts = std::unordered_map<int, std::string>;
using Languages = std::map<std::string, Texts>;

constexpr const char* kDefaultLanguage = "en";

Texts ReadTexts(const QString& fileName)
{
    QFile file(fileName);
    Texts texts;
    if (file.open(QIODevice::ReadOnly)) {
        const QJsonObject entries = QJsonDocument::fromJson(file.readAll()).object();
        for (auto entry = entries.begin(); entry != entries.end(); ++entry) {
            texts.emplace(entry.key().toInt(), entry.value().toString().toStdString());
        }
    }
    return texts;
}

Languages ReadLanguages()
{
    const QFileInfoList files = QDir(QStringLiteral(":/ErrorLexicon/texts")).entryInfoList();
    Languages languages;
    for (const QFileInfo& file : files) {
        languages.emplace(file.baseName().toStdString(), ReadTexts(file.filePath()));
    }
    return languages;
}

/// The texts of all languages, and the current language. Thread-safe.
class Lexicon {
public:
    /// Never destroyed, so that texts are available until the process ends.
    static Lexicon& Instance()
    {
        static auto* const pLexicon = new Lexicon;
        return *pLexicon;
    }

    void Choose(const std::string& strLanguage)
    {
        const auto found = m_languages.find(strLanguage);
        m_pChosen = found != m_languages.end() ? &found->second : &m_languages.at(kDefaultLanguage);
    }

    [[nodiscard]] const std::string* Find(int nErrorCode) const
    {
        const Texts& texts = *m_pChosen.load();
        const auto found = texts.find(nErrorCode);
        return found != texts.end() ? &found->second : nullptr;
    }

private:
    Lexicon() = default;

    const Languages m_languages = ReadLanguages();
    std::atomic<const Texts*> m_pChosen = &m_languages.at(kDefaultLanguage);
};

/// A status without its own text is treated as the first one of its class, as HTTP requires.
int StatusClass(int nErrorCode)
{
    return nErrorCode >= 400 && nErrorCode <= 599 ? nErrorCode / 100 * 100 : nErrorCode;
}

/// Locale-independent: a language code is plain ASCII.
char LowerCase(char letter)
{
    return letter >= 'A' && letter <= 'Z' ? static_cast<char>(letter - 'A' + 'a') : letter;
}

std::string FirstPart(const std::string& strLanguage)
{
    std::string part = strLanguage.substr(0, strLanguage.find_first_of("-_"));
    for (char& letter : part) {
        letter = LowerCase(letter);
    }
    return part;
}

}  // namespace

int ErrorLexiconQuery(int nErrorCode, std::string& strText)
{
    const Lexicon& lexicon = Lexicon::Instance();
    const std::string* pText = lexicon.Find(nErrorCode);
    if (pText == nullptr) {
        pText = lexicon.Find(StatusClass(nErrorCode));
    }
    if (pText == nullptr) {
        return -1;
    }
    strText = *pText;
    return 0;
}

void SetLanguage(const std::string& strLanguage)
{
    Lexicon::Instance().Choose(FirstPart(strLanguage));
}

}  // namespace ErrorLexicon
