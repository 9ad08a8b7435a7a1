#include "platform/files/file_error.h"

#include <cerrno>
#include <string>
#include <system_error>

#include "platform/text/runtime_error.h"

namespace tendo {

namespace {

struct Cause {
    int systemError;
    int number;
    std::string_view text;
};

constexpr Cause Causes[] = {
    {ENOSPC, error_number::DiskFull, "the disk is full"},
    {EDQUOT, error_number::DiskFull, "the disk is full (your quota is used up)"},
    {EFBIG, error_number::DiskFull, "the file would be larger than the disk allows"},
    {EACCES, error_number::PermissionDenied, "permission is denied"},
    {EPERM, error_number::PermissionDenied, "the operation is not permitted"},
    {EROFS, error_number::PermissionDenied, "the disk is read-only"},
    {EISDIR, error_number::PermissionDenied, "it is a folder"},
    {ETXTBSY, error_number::PermissionDenied, "the file is in use"},
    {EBUSY, error_number::PermissionDenied, "the file is in use"},
    {EEXIST, error_number::FileAlreadyExists, "the name is taken"},
    {ENOTDIR, error_number::PathNotFound, "a part of the path is not a folder"},
    {ENAMETOOLONG, error_number::PathNotFound, "the name is too long"},
    {ELOOP, error_number::PathNotFound, "its symbolic links go round in a circle"},
    {EIO, error_number::DeviceError, "the disk reports an error"},
};

}  // namespace

void ThrowFileError(std::string_view verb, std::string_view path, int number,
                    std::string_view cause) {
    throw RuntimeError(number, "Cannot " + std::string(verb) + " \"" + std::string(path) +
                                   "\": " + std::string(cause) + ".");
}

void ThrowFileError(std::string_view verb, std::string_view path, int systemError) {
    if (systemError == ENOENT && verb == "read") {
        ThrowFileError(verb, path, error_number::FileNotFound, "there is no such file");
    }
    if (systemError == ENOENT) {
        ThrowFileError(verb, path, error_number::PathNotFound, "there is no such folder");
    }
    for (const Cause& cause : Causes) {
        if (cause.systemError == systemError) ThrowFileError(verb, path, cause.number, cause.text);
    }
    ThrowFileError(verb, path, error_number::PathFileAccess,
                   std::generic_category().message(systemError));
}

}  // namespace tendo
