#pragma once

#include <pugixml.hpp>
#include <string>
#include <string_view>
#include <unordered_map>

#include "platform/office/zip_archive.h"

namespace tendo {

/// One part of an archive as XML: its names are asked for without their prefixes. Errors: 3343.
class XmlPart {
  public:
    XmlPart(const std::string& bytes, std::string_view file, const std::string& part);

    pugi::xml_node Root() const { return document_.document_element(); }

  private:
    pugi::xml_document document_;
};

/// The name without its prefix ("x:row" gives "row").
std::string_view LocalName(const pugi::xml_node& node);
/// The first child of a name without prefix; an empty node when there is none.
pugi::xml_node ChildOf(const pugi::xml_node& node, std::string_view name);
/// The value of an attribute named with or without a prefix; empty when there is none.
std::string_view AttributeOf(const pugi::xml_node& node, std::string_view name);

/// Where a part's relations lead.
struct PartRelations {
    std::unordered_map<std::string, std::string> byId;
    std::unordered_map<std::string, std::string> byType;  // the last word of the type
};

/// The relations of a part ("" for the archive's own), with full names of the parts they lead to.
PartRelations RelationsOf(ZipArchive& archive, std::string_view file, const std::string& part);

}  // namespace tendo
