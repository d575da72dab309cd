// SPDX-License-Identifier: MIT
#include "tests/support/printing.h"
#include "ui/windows/vendor.h"

#include <gtest/gtest.h>

namespace quillon {
namespace {

QUrl urlOf(const char* address)
{
    return Vendor{.name = QString(), .supportAddress = QString::fromUtf8(address)}.supportUrl();
}

TEST(Vendor, AWebAddressIsTheSupportSite)
{
    EXPECT_EQ(urlOf("https://help.example/a"), QUrl(QStringLiteral("https://help.example/a")));
    EXPECT_EQ(urlOf("http://help.example"), QUrl(QStringLiteral("http://help.example")));
}

TEST(Vendor, WhatIsNoWebAddressIsNoSupportSite)
{
    for (const char* const address : {"", " ", "help.example", "https://", "file:///etc/passwd",
                                      "https://a b", "mailto:a@b.c"}) {
        EXPECT_FALSE(urlOf(address).isValid()) << address;
    }
}

TEST(Vendor, ThisBuildHasANameAndARealSupportSiteOrNone)
{
    const Vendor vendor = vendorOfThisBuild();
    EXPECT_FALSE(vendor.name.isEmpty());
    EXPECT_EQ(vendor.supportUrl().isValid(), !vendor.supportAddress.isEmpty());
}

} // namespace
} // namespace quillon
