#include "tests/support/FreedPages.h"

#include <sqlite3.h>

#include <stdexcept>
#include <string>

namespace tarn {

void leaveInFreedPages(const std::filesystem::path& store, std::string_view text)
{
    sqlite3* database = nullptr;
    std::string rows;
    for (int row = 0; row < 400; ++row) // more than fits into one page
        rows += std::string(row == 0 ? "('" : ", ('") + std::string(text) + "')";
    const std::string statements = "PRAGMA secure_delete = OFF; CREATE TABLE scrap (content TEXT);"
                                   "INSERT INTO scrap VALUES "
        + rows + "; DROP TABLE scrap;";
    const bool isDone = sqlite3_open(store.c_str(), &database) == SQLITE_OK
        && sqlite3_exec(database, statements.c_str(), nullptr, nullptr, nullptr) == SQLITE_OK;
    sqlite3_close(database);
    if (!isDone)
        throw std::runtime_error("the store could not be written");
}

} // namespace tarn
