#include "track/TrackProgram.h"

int main(int argc, char** argv)
{
    return tempodial::RunTrackProgram({ argv + 1, argv + argc });
}
