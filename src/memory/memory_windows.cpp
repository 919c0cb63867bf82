#include "memory/memory_windows.h"

#include <algorithm>

#include "toolkit/form.h"

namespace memory {

namespace {

void Move_To_End(std::vector<Memory_Window*>& peers, Memory_Window* peer) {
  std::erase(peers, peer);
  peers.push_back(peer);
}

template <class Peers>
bool Contains(const Peers& peers, const Memory_Window* peer) {
  return std::find(peers.begin(), peers.end(), peer) != peers.end();
}

}  // namespace

void Memory_Windows::Begin() {
  silent_ = false;
  activations_.clear();
}

bool Memory_Windows::Is_Loaded(const Memory_Window* peer) const { return Contains(loaded_, peer); }

toolkit::Form* Memory_Windows::Active() const {
  Memory_Window* const active = Active_Peer();
  return active == nullptr ? nullptr : &active->Form();
}

void Memory_Windows::Tell_Activated(Memory_Window* peer) {
  if (peer == nullptr || silent_ || !Is_Loaded(peer) || peer != Active_Peer()) return;
  input_.Activity_Came(peer->Form());
  loop_.Dispatch([this] { input_.Tell_Of_Activity(); });
}

void Memory_Windows::Tell_Deactivated(Memory_Window* peer) {
  if (peer == nullptr || silent_ || !Is_Loaded(peer)) return;
  input_.Activity_Went(peer->Form());
  loop_.Dispatch([this] { input_.Tell_Of_Activity(); });
}

void Memory_Windows::Make_Active(Memory_Window* peer) {
  Memory_Window* const before = Active_Peer();
  if (peer != nullptr) Move_To_End(front_, peer);
  Move_To_End(activations_, peer);
  if (before == peer) return;
  Tell_Deactivated(before);
  Tell_Activated(peer);
}

void Memory_Windows::Activate(toolkit::Form* form) { Make_Active(form == nullptr ? nullptr : Peer_Of(*form)); }

void Memory_Windows::Shown(Memory_Window& peer, bool activate) {
  if (!Contains(shown_, &peer)) shown_.push_back(&peer);
  Move_To_End(front_, &peer);
  if (activate) Make_Active(&peer);
}

void Memory_Windows::Take_Off(Memory_Window& peer) {
  for (Peers* const peers : {&shown_, &front_, &activations_}) std::erase(*peers, &peer);
}

void Memory_Windows::Hidden(Memory_Window& peer) {
  const bool was_active = Active_Peer() == &peer;
  Take_Off(peer);
  if (!was_active) return;
  Tell_Deactivated(&peer);
  Tell_Activated(Active_Peer());
}

/// A minimised window stays visible but is no longer active; a restored one becomes active.
void Memory_Windows::Minimised(Memory_Window& peer, bool minimised) {
  if (!minimised) return Make_Active(&peer);
  const bool was_active = Active_Peer() == &peer;
  std::erase(activations_, &peer);
  if (!was_active) return;
  // A disabled window doesn't become active instead: a window of another program does.
  if (Active_Peer() != nullptr && !Active_Peer()->Form().Enabled) activations_.push_back(nullptr);
  Tell_Deactivated(&peer);
  Tell_Activated(Active_Peer());
}

void Memory_Windows::Remove(Memory_Window& peer) {
  const bool was_active = Active_Peer() == &peer;
  if (mouse_ == &peer) mouse_ = nullptr;
  Take_Off(peer);
  std::erase(loaded_, &peer);
  Memory_Window* const next = Active_Peer();
  if (!was_active || next == nullptr || silent_) return;
  // The unloaded window isn't told, and the next one only when events are served: a handler of that one must not fail
  // in the middle of this one's unload.
  time_.Schedule(time_.Elapsed(), [this, next] { Tell_Activated(next); });
}

toolkit::Form* Memory_Windows::Find(std::string_view name) const {
  const auto found = std::find_if(loaded_.rbegin(), loaded_.rend(),
                                  [name](const Memory_Window* peer) { return peer->Form().Name == name; });
  return found == loaded_.rend() ? nullptr : &(*found)->Form();
}

toolkit::Form* Memory_Windows::Find(platform::Window_Handle handle) const {
  const auto found = std::find_if(loaded_.begin(), loaded_.end(),
                                  [handle](const Memory_Window* peer) { return peer->Handle() == handle; });
  return found == loaded_.end() ? nullptr : &(*found)->Form();
}

Memory_Window* Memory_Windows::Peer_Of(const toolkit::Form& form) const {
  const auto found =
      std::find_if(loaded_.begin(), loaded_.end(), [&](const Memory_Window* peer) { return &peer->Form() == &form; });
  return found == loaded_.end() ? nullptr : *found;
}

std::vector<toolkit::Form*> Memory_Windows::In_Order_Of_Showing() const {
  std::vector<toolkit::Form*> forms;
  for (const Memory_Window* const peer : shown_) forms.push_back(&peer->Form());
  return forms;
}

std::vector<toolkit::Form*> Memory_Windows::From_The_Front() const {
  std::vector<toolkit::Form*> forms;
  for (const Memory_Window* const peer : Peers(front_.rbegin(), front_.rend())) forms.push_back(&peer->Form());
  for (const Memory_Window* const peer : Peers(loaded_.rbegin(), loaded_.rend()))
    if (!Contains(front_, peer)) forms.push_back(&peer->Form());
  return forms;
}

}  // namespace memory
