#pragma once
#include <string>
#include <vector>

namespace brimshade::desktop::session::remote {

// An item of the bar as other programs are told about it. Text is UTF-8.
struct Item {
    std::string name, program;
    bool isHidden = false;
};

std::string asTable(const std::vector<Item> &items); // a line of headings, then one line per item
std::string asJson(const std::vector<Item> &items); // an array of objects, ends with a new line

} // namespace brimshade::desktop::session::remote
