#include "ValueEditor.h"

#include "ListEditor.h"
#include "PlainEditors.h"
#include "RecordEditor.h"

namespace explorer {

using catalogue::Kind;

ValueEditor* MakeEditor(const catalogue::Type& type, const QString& name, QWidget* pParent)
{
    switch (type.kind) {
    case Kind::Bool:
        return new BoolEditor(name, pParent);
    case Kind::Int:
    case Kind::Int64:
    case Kind::Double:
        return new NumberEditor(type.kind, name, pParent);
    case Kind::Text:
        return new TextEditor(name, pParent);
    case Kind::Record:
        return new RecordEditor(type, pParent);
    case Kind::List:
        return new ListEditor(type, name, pParent);
    }
    return nullptr;
}

}  // namespace explorer
