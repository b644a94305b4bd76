#pragma once

#include <optional>
#include <string_view>

namespace tarn {

struct FileType;

/// What kind of data a file holds, as its name tells it.
///
/// A small value that points into a constant table. Any thread.
///
///     const auto type = UTType::typeWithFilenameExtension("JPG");
///     if (type && type->conformsToImage()) show(file);
class UTType {
public:
    /// The type of files with this extension, given without its dot; the case of ASCII letters does not matter. None
    /// when the extension is empty or not known.
    static std::optional<UTType> typeWithFilenameExtension(std::string_view extension) noexcept;

    /// The MIME type, "image/jpeg" for example. Lives as long as the program.
    std::string_view identifier() const noexcept;
    /// The extension that files of this type should have, in lower case and without a dot: "jpeg" for JPG, jpe and
    /// jfif. Each type has one, and it leads to the type again. Lives as long as the program.
    std::string_view preferredFilenameExtension() const noexcept;

    /// Whether it is a picture: SVG drawings and raw pictures of cameras too, so not all of them can be opened here.
    bool conformsToImage() const noexcept;
    /// Whether it is JPEG; the formats called JPEG 2000, JPEG XL and so on are not.
    bool conformsToJPEG() const noexcept;
    /// Whether it is an SVG drawing, compressed or not.
    bool conformsToSVG() const noexcept;

    /// Extensions of one type give equal types.
    friend bool operator==(const UTType& one, const UTType& other) noexcept
    {
        return one.identifier() == other.identifier();
    }

private:
    explicit UTType(const FileType& type) noexcept : type_(&type) { }

    const FileType* type_;
};

} // namespace tarn
