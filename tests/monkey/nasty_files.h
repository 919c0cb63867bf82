// Files for the imports, and wallpaper packs: good ones, odd ones and broken ones.
#pragma once

#include <string>

#include "random.h"

namespace monkey {

/// What an import may be given as a CSV file; mostly one that can be imported.
std::string Csv_File(Random& random);

/// The same for a configuration file. Its values may be any that the program takes or refuses.
std::string Config_File(Random& random);

/// The line of `setting` for a value of the settings that some start would find.
std::string Stored_Setting(Random& random);

/// The same for all settings, with their defaults, so that the program can start whatever was stored before.
std::string Healed_Settings();

/// A pack that says the same of every month.
std::string Make_Pack(const std::string& name, const std::string& value);

/// The lines that make a pack, whole or not, or spoil one.
std::string Change_Packs(Random& random);

}  // namespace monkey
