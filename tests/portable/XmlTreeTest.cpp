#include "portable/XmlTree.h"

#include <gtest/gtest.h>

namespace tempodial {

TEST(XmlTreeTest, Next_Elements_AreThoseOfOneNameBelowOnePlace)
{
    XmlTree tree;
    const auto root = tree.AddElement(XmlTree::Document, "root");
    const auto first = tree.AddElement(root, "a");
    tree.AddElement(first, "a");
    tree.AddText(root, "a");
    const auto other = tree.AddElement(root, "b");
    const auto second = tree.AddElement(root, "a");
    EXPECT_EQ(tree.Find(root, "a"), first);
    EXPECT_EQ(tree.Next(first), second);
    EXPECT_EQ(tree.Next(second), XmlTree::None);
    EXPECT_EQ(tree.Next(other), XmlTree::None);
    EXPECT_EQ(tree.Next(root), XmlTree::None);
}

}
