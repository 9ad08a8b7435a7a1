#include "equipment/model_field.h"

namespace tendo {

bool CommitModelField(const ModelField& field, ProjectRecords& records, int system,
                      std::string_view text) {
    if (text == field.read(records, system)) return false;
    field.write(records, system, text);
    return true;
}

}  // namespace tendo
