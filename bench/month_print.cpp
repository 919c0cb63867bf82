// Prints the events of a month, as a command line calendar does: bench_month_print FILE MONTH YEAR
// It reads by the program's own reader, and is timed as a whole process beside other calendars.
#include <algorithm>
#include <cstdio>
#include <exception>
#include <utility>
#include <vector>

#include "basic/convert.h"
#include "basic/record_reader.h"
#include "bench/posix_files.h"
#include "events/event_line.h"

namespace {

/// The records of the month as they stand in the file, one a line, the earlier days first.
std::string Month_Of(std::string_view bytes, basic::Int16 month, basic::Int16 year) {
  std::vector<std::pair<int, std::string_view>> found;
  basic::Record_Reader reader(bytes);
  std::string_view record;
  while (reader.Next(record)) {
    const events::Event_Line event = events::Read_Event_Line(record);
    if (event.Month != month || (event.Year != events::every_year && event.Year != year)) continue;
    found.emplace_back(event.Day.Value(), record);
  }
  std::ranges::stable_sort(found, {}, [](const auto& entry) { return entry.first; });
  std::string page;
  for (const auto& entry : found) {
    page += entry.second;
    page += '\n';
  }
  return page;
}

}  // namespace

int main(int count, char** arguments) {
  if (count != 4) return 2;
  try {
    const std::string path = arguments[1];
    const std::size_t folder_end = path.rfind('/');
    bench::Posix_Files files(folder_end == std::string::npos ? "." : path.substr(0, folder_end));
    std::string bytes;
    files.Read_Whole(path.substr(folder_end + 1), bytes);
    const std::string page = Month_Of(bytes, basic::To_Int16(arguments[2]), basic::To_Int16(arguments[3]));
    return std::fwrite(page.data(), 1, page.size(), stdout) == page.size() ? 0 : 1;
  } catch (const std::exception& error) {
    std::fprintf(stderr, "bench_month_print: %s\n", error.what());
    return 1;
  }
}
