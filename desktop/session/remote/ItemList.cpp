#include "ItemList.h"

#include <algorithm>
#include <cstdio>

namespace brimshade::desktop::session::remote {

namespace {

const char *sideOf(const Item &item)
{
    return item.isHidden ? "hidden" : "visible";
}

std::size_t lengthOf(const std::string &text) // in characters
{
    return static_cast<std::size_t>(
        std::ranges::count_if(text, [](char byte) { return (static_cast<unsigned char>(byte) & 0xc0) != 0x80; }));
}

std::string padded(const std::string &text, std::size_t width)
{
    return text + std::string(width - lengthOf(text), ' ');
}

std::string quoted(const std::string &text)
{
    std::string result = "\"";
    for (const char c : text) {
        if (c == '"' || c == '\\') {
            result += {'\\', c};
        } else if (static_cast<unsigned char>(c) < 0x20) {
            char escape[7];
            std::snprintf(escape, sizeof escape, "\\u%04x", unsigned(c));
            result += escape;
        } else {
            result += c;
        }
    }
    return result + '"';
}

} // namespace

std::string asTable(const std::vector<Item> &items)
{
    const std::string name = "NAME", program = "PROGRAM", gap = "  ";
    std::size_t nameWidth = name.size(), programWidth = program.size();
    for (const Item &item : items) {
        nameWidth = std::max(nameWidth, lengthOf(item.name));
        programWidth = std::max(programWidth, lengthOf(item.program));
    }
    std::string table = padded(name, nameWidth) + gap + padded(program, programWidth) + gap + "SIDE\n";
    for (const Item &item : items) {
        table.append(padded(item.name, nameWidth)).append(gap);
        table.append(padded(item.program, programWidth)).append(gap).append(sideOf(item)).append("\n");
    }
    return table;
}

std::string asJson(const std::vector<Item> &items)
{
    std::string json = "[";
    for (const Item &item : items) {
        json += json.size() > 1 ? ",\n " : "";
        json.append("{\"name\": ").append(quoted(item.name));
        json.append(", \"program\": ").append(quoted(item.program));
        json.append(", \"side\": \"").append(sideOf(item)).append("\"}");
    }
    return json + "]\n";
}

} // namespace brimshade::desktop::session::remote
