#pragma once

#include <string>
#include <string_view>

namespace zerna {

/// A text for a message: as it is, or beginning and end with "…" between them if it has more than so many bytes. UTF-8
/// characters are not cut.
std::string gekuerzt(std::string_view text, std::size_t length = 60);

/// The same in quotation marks.
std::string zitiert(std::string_view text, std::size_t length = 60);

/// A file's name as messages show it, in quotation marks: whole unless it is longer than any file's without its folder.
std::string zitierteDatei(std::string_view name);

} // namespace zerna
