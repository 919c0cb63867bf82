// The services of the platform that this executable is built for, and a folder to work in.
#pragma once

#include <gtest/gtest.h>

#include <memory>

#include "platform/system.h"
#include "tests/contract/user.h"
#include "toolkit/backend.h"

class Service_World {
 public:
  virtual ~Service_World() = default;
  virtual platform::System& System() = 0;
  virtual toolkit::Backend& Backend() = 0;
  virtual User& The_User() = 0;

  /// Runs what the program does, as the platform's loop runs it.
  virtual void Run(const std::function<void()>& work) = 0;

  /// The desktop's windows, with icons of those colours: the background of their texts, and the texts. It may hang from
  /// then on, or end.
  virtual void Begin_Shell(int back, int text) = 0;
  virtual void Hang_Shell() = 0;
  virtual void End_Shell() = 0;

  /// Makes a folder in the program folder.
  virtual void Make_Folder(const std::string& name) = 0;

  /// Makes a file of the program folder read-only, or no longer so.
  virtual void Set_Read_Only(const std::string& name, bool on) = 0;

  /// Makes a file of the program folder a hidden one.
  virtual void Hide(const std::string& name) = 0;
};

std::unique_ptr<Service_World> Make_Service_World();

class Service_Cases : public ::testing::Test {
 protected:
  std::string Path(const std::string& name) { return World->System().Files.Program_Folder() + '\\' + name; }

  std::unique_ptr<Service_World> World = Make_Service_World();
};
