// What the documents show of programs.

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

namespace
{
std::string ReadText(std::filesystem::path const & path)
{
    std::ifstream file(path);
    return {std::istreambuf_iterator<char>(file), {}};
}
} // namespace

TEST(Documents, TheReadmeShowsTheExampleAsItIs)
{
    std::filesystem::path const top = std::filesystem::path(WORKBENCH_SOURCES).parent_path();
    std::string const example = ReadText(top / "docs" / "example" / "Example.cpp");
    ASSERT_FALSE(example.empty());
    EXPECT_NE(ReadText(top / "README.md").find("\n```cpp\n" + example + "```\n"), std::string::npos);
}
