#pragma once

#include <catalogue/Call.h>

#include <QByteArray>

#include <vector>

namespace bench {

/// The data of a reply whose lists have a thousand elements each.
struct ListReply {
    const catalogue::Call* call;
    QByteArray text;
};

constexpr std::size_t kElements = 1000;

/// One reply for every Parse that reads a list, except the detailed parking lots.
std::vector<ListReply> ListReplies();

/// The number of elements in the lists of a record read from such a reply, without inner lists.
std::size_t CountElements(const catalogue::Type& type, void* record);

}  // namespace bench
