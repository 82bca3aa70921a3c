#pragma once

#include <functional>
#include <string>
#include <vector>

namespace ZARN {

/// What a program of the command line does before its work: files, signals and the end of memory are met as its contract says.
/// @param work gets the arguments behind the program's name, and gives the exit status.
int startUp(int argc, char** argv, const std::function<int(std::vector<std::string>)>& work);

} // namespace ZARN
