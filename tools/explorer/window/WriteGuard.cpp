#include "WriteGuard.h"

#include "OverwriteDialog.h"

#include "../core/CallIndex.h"
#include "../views/ArgumentForm.h"
#include "../views/Json.h"

#include <QPointer>

#include <algorithm>

namespace explorer {
namespace {

using nlohmann::json;

/// The arguments of the read, taken from the form. Throws Mismatch if they are missing.
json AskedOf(const catalogue::MatchingRead& read, const RunOrder& write)
{
    json asked = catalogue::ArgumentsOfRead(read, *write.call, FromQt(write.arguments));
    for (const auto& [name, value] : asked.items()) {
        if (value.is_string() && value.get_ref<const std::string&>().empty()) {
            throw catalogue::Mismatch(WriteGuard::tr("%1 needs \"%2\"")
                                          .arg(QString::fromStdString(read.call->name), QString::fromStdString(name))
                                          .toStdString());
        }
    }
    return asked;
}

/// An object with this member only.
json Alone(const std::string& name, const json& value)
{
    json object = json::object();
    object[name] = value;
    return object;
}

/// The paths within one argument.
Unentered In(const std::string& argument, const Unentered& unentered)
{
    const std::string begin = '/' + argument;
    Unentered inside;
    const auto isInside = [&begin](const std::string& place) {
        return place == begin || place.rfind(begin + '/', 0) == 0;
    };
    std::copy_if(unentered.values.begin(), unentered.values.end(), std::back_inserter(inside.values), isInside);
    std::copy_if(unentered.elements.begin(), unentered.elements.end(), std::back_inserter(inside.elements), isInside);
    return inside;
}

}  // namespace

WriteGuard::WriteGuard(ArgumentForm& form, Runner& runner, QWidget* pWindow)
    : QObject(pWindow), m_form(form), m_runner(runner), m_pWindow(pWindow)
{}

QString WriteGuard::ReadFor(const catalogue::Call& call)
{
    const auto read = catalogue::FindMatchingRead(call);
    return read ? ShortName(*read->call) : QString();
}

void WriteGuard::Fill(const RunOrder& write)
{
    const auto read = catalogue::FindMatchingRead(*write.call);
    if (!read || m_bBusy) {
        return;
    }
    Read(write, *read, [this, write, name = std::string(read->argument->name)](const Present& present) {
        if (present.value.is_null()) {
            emit Message(present.why);
        } else if (m_form.Call() == write.call) {
            m_form.SetArguments(ToQt(Alone(name, present.value)), Origin::Known);
            emit Message(tr("The form now has the values from the server."));
        }
    });
}

void WriteGuard::Check(const RunOrder& write, const std::function<void()>& proceed)
{
    if (m_bBusy) {
        return;
    }
    const Unentered unentered = m_form.NotEntered();
    const auto read = catalogue::FindMatchingRead(*write.call);
    const std::string name = read ? std::string(read->argument->name) : std::string();
    if (read && !In(name, unentered).values.empty()) {
        Read(write, *read, [this, write, proceed, name, unentered](const Present& present) {
            const json sent = Alone(name, FromQt(write.arguments).at(name));
            const json before = present.value.is_null() ? json() : Alone(name, present.value);
            const Unentered inside = In(name, unentered);
            if (before.is_null() || OverwritesUnseen(before, sent, inside)) {
                Ask(write, proceed, inside, before, sent, present.why);
            } else {
                proceed();
            }
        });
    } else if (!unentered.elements.empty()) {
        Ask(write, proceed, {{}, unentered.elements}, {}, FromQt(write.arguments), {});
    } else {
        proceed();
    }
}

void WriteGuard::Read(const RunOrder& write, const catalogue::MatchingRead& read,
                      const std::function<void(const Present&)>& then)
{
    RunOrder order = write;
    order.call = read.call;
    json asked;
    try {
        asked = AskedOf(read, write);
    } catch (const catalogue::Mismatch& mismatch) {
        then({{}, QString::fromUtf8(mismatch.what())});
        return;
    }
    order.arguments = ToQt(asked);
    m_bBusy = true;
    order.finished = [pGuard = QPointer<WriteGuard>(this), read, asked, then](const CallOutcome& outcome) {
        if (!pGuard) {
            return;
        }
        pGuard->m_bBusy = false;
        if (outcome.succeeded && !outcome.record.is_null()) {
            then({catalogue::PresentValue(read, asked, outcome.record), {}});
        } else {
            const QString name = QString::fromStdString(outcome.call->name);
            //: %1 is a call, %2 why it failed
            const QString failed = tr("%1 failed: %2").arg(name, outcome.resultText);
            const QString why = outcome.succeeded ? tr("%1 returned no data").arg(name) : failed;
            then({{}, why});
        }
    };
    m_runner.Order(order);
}

void WriteGuard::Ask(const RunOrder& write, const std::function<void()>& proceed, const Unentered& unentered,
                     const json& present, const json& sent, const QString& why)
{
    m_bBusy = true;
    auto* const pDialog =
        new OverwriteDialog(QString::fromStdString(write.call->name), present, sent, unentered, why, m_pWindow);
    pDialog->setAttribute(Qt::WA_DeleteOnClose);
    connect(pDialog, &QDialog::finished, this, [this, proceed, write](int result) {
        m_bBusy = false;
        if (result == QDialog::Accepted) {
            if (m_form.Call() == write.call) {
                m_form.SetArguments(m_form.Arguments(), Origin::Known);
            }
            proceed();
        }
    });
    pDialog->open();
}

void WriteGuard::Forget()
{
    m_form.SetArguments(m_form.Arguments(), Origin::Unseen);
}

}  // namespace explorer
