// The contract of the registry module as one table of cases. Each platform that offers the services runs the whole table:
// it instantiates Registry_Cases with a function that makes a world of its services.
#pragma once

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "settings/registry.h"

/// The services of one platform. A place "INI" of the table stands for a profile file of the world.
class Registry_World {
 public:
  virtual ~Registry_World() = default;
  virtual platform::Registry_Keys& Keys() = 0;
  virtual platform::Profile_Files& Profiles() = 0;
  virtual platform::Files& Files() = 0;
};

using World_Maker = std::unique_ptr<Registry_World> (*)();

enum class Registry_Call { Get, Set, Delete, Raw };

/// One call of the module and what it must give. Keys lie under the test's own key.
struct Registry_Step {
  Registry_Call Call = Registry_Call::Get;
  std::string Place, Key, Name, Kind;
  settings::Registry_Value Data;    ///< the default of a read, the data of a write, the bytes of a raw one
  int Status = 0;                   ///< what the call returns
  settings::Registry_Value Result;  ///< of a read
};

struct Registry_Case {
  const char* Name = nullptr;
  std::vector<Registry_Step> Steps;
};

const std::vector<Registry_Case>& All_Registry_Cases();

class Registry_Cases : public ::testing::TestWithParam<std::tuple<World_Maker, Registry_Case>> {
 public:
  static std::string Name_Of(const ::testing::TestParamInfo<ParamType>& info) { return std::get<1>(info.param).Name; }

 protected:
  void SetUp() override;
  void Play(const Registry_Step& step);

  std::unique_ptr<Registry_World> World;
  std::unique_ptr<settings::Registry> Registry;
  std::string Profile;
};
