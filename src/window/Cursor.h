#pragma once

// What the mouse looks like.
enum class ECursor {
    Arrow,
    Move,    // arrows in all four directions: something goes along with the hand
    Handle,  // a point that can be taken hold of
};
