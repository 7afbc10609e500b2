#include "review/ProjectMoves.h"

#include <gmock/gmock.h>

namespace tempodial {

TEST(ProjectMovesTest, LargestFirst_Moves_AreSummedAndOrdered)
{
    ProjectMoves moves;
    moves.Add("A", "B", 5);
    moves.Add("B", "A", 6);
    moves.Add("A", "B", 1);
    moves.Add("A", "A2", 7);
    moves.Add("C", "D", 6);
    using Move = ProjectMoves::Move;
    EXPECT_THAT(moves.LargestFirst(),
        testing::ElementsAre(
            Move { "A", "A2", 1, 7 }, Move { "A", "B", 2, 6 }, Move { "B", "A", 1, 6 }, Move { "C", "D", 1, 6 }));
    EXPECT_EQ(moves.Activities(), 5);
    EXPECT_THAT(ProjectMoves().LargestFirst(), testing::IsEmpty());
}

}
