// The long texts of the information screens.
#pragma once

namespace texts {

extern const char* const About;
extern const char* const SmallStudioHelp;
extern const char* const LargeStudioHelp;
extern const char* const Terms;

}  // namespace texts
