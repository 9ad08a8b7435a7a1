#include "platform/office/xlsx_parts.h"

#include <algorithm>

#include "platform/office/office_error.h"

namespace tendo {

namespace {

/// Nodes and attributes take ten times their text or more: their number bounds the memory.
constexpr std::ptrdiff_t MostMarks = 3'000'000;

/// "../worksheets/s.xml" seen from "xl/x/".
std::string FullName(std::string folder, std::string_view target) {
    if (target.starts_with("/")) return std::string(target.substr(1));
    while (target.starts_with("../")) {
        target.remove_prefix(3);
        const std::size_t slash =
            folder.size() < 2 ? folder.npos : folder.rfind('/', folder.size() - 2);
        folder.resize(slash == folder.npos ? 0 : slash + 1);
    }
    return folder + std::string(target);
}

}  // namespace

XmlPart::XmlPart(const std::string& bytes, std::string_view file, const std::string& part) {
    const auto marks =
        std::count_if(bytes.begin(), bytes.end(), [](char c) { return c == '<' || c == '='; });
    if (marks > MostMarks) ThrowNotReadable(file, "its part " + part + " has too many cells");
    const pugi::xml_parse_result result = document_.load_buffer(
        bytes.data(), bytes.size(), pugi::parse_default | pugi::parse_ws_pcdata_single);
    if (!result)
        ThrowDamage(
            file,
            "part " + part + ", " +
                ByteText(static_cast<std::size_t>(std::max<std::ptrdiff_t>(result.offset, 0))),
            result.description());
}

std::string_view LocalName(const pugi::xml_node& node) {
    const std::string_view name = node.name();
    return name.substr(name.find(':') + 1);
}

pugi::xml_node ChildOf(const pugi::xml_node& node, std::string_view name) {
    for (const pugi::xml_node child : node.children())
        if (LocalName(child) == name) return child;
    return {};
}

std::string_view AttributeOf(const pugi::xml_node& node, std::string_view name) {
    for (const pugi::xml_attribute attribute : node.attributes()) {
        const std::string_view own = attribute.name();
        if (own.substr(own.find(':') + 1) == name) return attribute.value();
    }
    return {};
}

PartRelations RelationsOf(ZipArchive& archive, std::string_view file, const std::string& part) {
    const std::size_t slash = part.rfind('/');
    const std::string folder = slash == part.npos ? "" : part.substr(0, slash + 1);
    const std::string name = folder + "_rels/" + part.substr(folder.size()) + ".rels";
    PartRelations relations;
    const auto bytes = archive.Entry(name);
    if (!bytes) return relations;
    const XmlPart xml(*bytes, file, name);
    for (const pugi::xml_node relation : xml.Root().children()) {
        const std::string target = FullName(folder, AttributeOf(relation, "Target"));
        const std::string_view type = AttributeOf(relation, "Type");
        relations.byId.emplace(AttributeOf(relation, "Id"), target);
        relations.byType.emplace(type.substr(type.rfind('/') + 1), target);
    }
    return relations;
}

}  // namespace tendo
