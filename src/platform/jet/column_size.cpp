#include "platform/jet/column_size.h"

namespace tendo::jet {

bool IsFixedType(ColumnType type) {
    return type != ColumnType::Text && type != ColumnType::Memo && type != ColumnType::Ole &&
           type != ColumnType::Binary;
}

std::uint16_t SizeOfType(ColumnType type, int size) {
    switch (type) {
        case ColumnType::Boolean:
        case ColumnType::Byte:
            return 1;
        case ColumnType::Integer:
            return 2;
        case ColumnType::Long:
        case ColumnType::Single:
            return 4;
        case ColumnType::Currency:
        case ColumnType::Double:
        case ColumnType::Date:
            return 8;
        case ColumnType::Guid:
            return 16;
        case ColumnType::Numeric:
            return 17;
        case ColumnType::Text:
            return static_cast<std::uint16_t>(2 * size);
        case ColumnType::Binary:
            return static_cast<std::uint16_t>(size);
        default:
            return 0;
    }
}

}  // namespace tendo::jet
