// Prints the page of the site that lists the calls, from the catalogue and the contract in the folder that is named.
#include <catalogue/Call.h>
#include <Contract.h>

#include <iostream>
#include <string>

namespace {

/// A link to the function's place in the reference.
std::string Reference(std::string_view function)
{
    const std::string_view name = function.substr(function.rfind(':') + 1);
    return std::string("[").append(name).append("](@ref ").append(function).append(")");
}

std::string Line(const catalogue::Call& call, const emulator::Operation& operation)
{
    const std::string name = call.name.substr(call.family.size() + 1);
    const std::string parse =
        call.parse == nullptr ? "" : Reference(call.parseName) + ": " + catalogue::NameOf(*call.result) + " ";
    return "| [" + name + "](contract/index.html#operation/" + call.name + ") | " + operation.method + " `" +
           operation.path + "` | " + Reference(call.packName) + " | " + parse + "|\n";
}

}  // namespace

int main(int /*argc*/, char** argv)
{
    const emulator::Contract contract = emulator::Contract::Load(argv[1]);
    std::cout << "# Calls {#calls}\n\nA call leads to its operation in the contract, a function to its description.\n";
    std::string family;
    std::string_view subject;
    for (const catalogue::Call& call : catalogue::Calls()) {
        if (call.family != family) {
            std::cout << "\n## " << call.family << "\n";
        }
        if (call.subject != subject) {
            std::cout << "\n### " << call.subject
                      << "\n\n| Call | Request | Pack | Parse and what it fills |\n|---|---|---|---|\n";
        }
        family = call.family;
        subject = call.subject;
        std::cout << Line(call, contract.operation(call.name));
    }
}
