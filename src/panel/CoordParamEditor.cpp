#include "panel/CoordParamEditor.h"

#include "catalogue/CoordParamKey.h"

#include <QByteArray>

void CoordParamEditor::setRecord(const IDictionary& record) {
    dictionary_assign(values.get(), &record);
}

void CoordParamEditor::setValue(const char* key, const QByteArray& text) {
    values->setText(key, text.constData());
}

void CoordParamEditor::replaceValues(const IDictionary& source) {
    using namespace CoordParamKey;
    if (source.getValue(shiftType)) {
        for (const char* key : {shiftDx, shiftDy, shiftDz, shiftRx, shiftRy, shiftRz, shiftPpm})
            values->remove(key);
    }
    for (int i = 0; i < source.count(); ++i)
        dictionary_copy(values.get(), &source, source.getKey(i), '\0');
}
