#include "materials/screens/list_screens.h"

namespace tendo {

ListNews& NewsOfLists() {
    static ListNews news;
    return news;
}

}  // namespace tendo
