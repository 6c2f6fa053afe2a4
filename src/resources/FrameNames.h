#pragma once

#include <array>

// What the pictures in the list of frames show, for whoever has it read aloud: no frame, then the frames by
// their numbers.
inline constexpr std::array kFrameNames = {"无相框", "红灯笼", "春花", "剪纸", "胶片", "拍立得", "邮票",
                                           "气球",   "雪花",   "海贝", "星夜", "生日", "木雕"};
