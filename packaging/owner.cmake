# What only the owner of tarn can say. Nothing is chosen here in the owner's name: the packages are
# built without, and packaging/copyright.in says what is missing. docs/packaging.md has the list of
# what to fill in before a package is passed on.

# The licence of tarn, as SPDX writes it. Its text goes into packaging/licence.txt.
set(TARN_LICENCE "")

# Who holds the copyright: "2026 Kim Doe".
set(TARN_COPYRIGHT "")

# Who answers for the packages: "Kim Doe <kim@doe.example>".
set(TARN_MAINTAINER "Owner of tarn <owner@tarn.invalid>")

# Where tarn is to be found; empty for nowhere.
set(TARN_HOMEPAGE "")

# By what name programs that list software know tarn: it begins with a domain of the owner's, its
# parts turned round. "example.org" is nobody's, and kept so.
set(TARN_COMPONENT_ID "org.example.tarn")
