// A recording's file while it is open.

#include <gtest/gtest.h>

#include <array>
#include <filesystem>
#include <fstream>
#include <string>

#include "logic/ByteSource.h"

using workbench::FileByteSource;

namespace
{
class ByteSourceOfAFile : public testing::Test
{
protected:
    ByteSourceOfAFile()
        : m_file(std::filesystem::temp_directory_path() /
                 (std::string("byte source ") + testing::UnitTest::GetInstance()->current_test_info()->name()))
    {
        std::ofstream(m_file, std::ios::binary) << "0123456789";
    }
    ~ByteSourceOfAFile() override
    {
        std::error_code error;
        std::filesystem::remove(m_file, error);
    }

    static std::string Text(FileByteSource & source, std::uint64_t offset, std::size_t count)
    {
        std::string text(count, '?');
        std::size_t const read = source.Read(offset, std::as_writable_bytes(std::span(text)));
        return text.substr(0, read);
    }

    std::filesystem::path const m_file;
};
} // namespace

TEST_F(ByteSourceOfAFile, GivesItsBytes)
{
    auto const source = FileByteSource::Open(m_file);
    ASSERT_TRUE(source);
    EXPECT_EQ(source->Size(), 10U);
    EXPECT_EQ(Text(*source, 7, 2), "78");
    EXPECT_EQ(Text(*source, 0, 3), "012");
    EXPECT_EQ(Text(*source, 8, 5), "89");
    EXPECT_EQ(Text(*source, 10, 1), "");
    EXPECT_EQ(Text(*source, 9, 1), "9");
}

TEST_F(ByteSourceOfAFile, GivesFewerWhereTheFileShrinks)
{
    auto const source = FileByteSource::Open(m_file);
    ASSERT_TRUE(source);
    std::filesystem::resize_file(m_file, 4);
    EXPECT_EQ(Text(*source, 2, 5), "23");
    EXPECT_EQ(Text(*source, 6, 2), "");
    EXPECT_EQ(source->Size(), 10U);
}

TEST_F(ByteSourceOfAFile, IsNoneOfAFolderOrOfNothing)
{
    EXPECT_FALSE(FileByteSource::Open(std::filesystem::temp_directory_path()));
    EXPECT_FALSE(FileByteSource::Open(m_file / "nothing"));
}

TEST_F(ByteSourceOfAFile, LetsOthersRenameAndDeleteTheFile)
{
    auto const source = FileByteSource::Open(m_file);
    ASSERT_TRUE(source);
    auto const other = std::filesystem::path(m_file).concat(" renamed");
    std::error_code error;
    std::filesystem::rename(m_file, other, error);
    EXPECT_FALSE(error) << error.message();
    EXPECT_TRUE(std::filesystem::remove(other, error)) << error.message();
    EXPECT_EQ(Text(*source, 3, 2), "34");
}
