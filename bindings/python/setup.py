"""The wheel holds a library: it is one of a platform, for every Python there."""

import os

from setuptools import Distribution, setup
from wheel.bdist_wheel import bdist_wheel


class PlatformWheel(bdist_wheel):
    def get_tag(self):
        return "py3", "none", os.environ.get("TESSARO_WHEEL_PLATFORM") or super().get_tag()[2]


class WithLibrary(Distribution):
    def has_ext_modules(self):
        return True


setup(cmdclass={"bdist_wheel": PlatformWheel}, distclass=WithLibrary)
