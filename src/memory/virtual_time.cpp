#include "memory/virtual_time.h"

#include <algorithm>
#include <utility>

namespace memory {

basic::Moment Virtual_Time::Now() const {
  const std::int64_t wall = wall_at_beginning_ + elapsed_;
  const std::int64_t of_the_day = (wall % micros_of_a_day + micros_of_a_day) % micros_of_a_day;
  return {static_cast<basic::Serial_Day>((wall - of_the_day) / micros_of_a_day), of_the_day};
}

void Virtual_Time::Set_Now(const basic::Moment& moment) {
  wall_at_beginning_ = std::int64_t{moment.Day} * micros_of_a_day + moment.Micros - elapsed_;
}

Virtual_Time::Ticket Virtual_Time::Schedule(std::int64_t due, Action action) {
  const Ticket ticket{due, ++last_number_};
  waiting_.emplace(ticket, std::move(action));
  return ticket;
}

void Virtual_Time::Cancel(const Ticket& ticket) { waiting_.erase(ticket); }

bool Virtual_Time::Step(std::int64_t end) {
  const auto next = waiting_.begin();
  if (next == waiting_.end() || next->first.Due > end) {
    elapsed_ = std::max(elapsed_, end);
    return false;
  }
  elapsed_ = std::max(elapsed_, next->first.Due);
  // It leaves the list before it runs, so that a wait within it doesn't run it again.
  const Action action = std::move(next->second);
  waiting_.erase(next);
  action();
  return true;
}

void Virtual_Time::Run_Until(std::int64_t end) {
  while (Step(end)) {}
}

}  // namespace memory
