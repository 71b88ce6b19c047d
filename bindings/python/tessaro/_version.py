"""The version of the library.

Made by generate.py from the description of the library; changes here are lost.
"""

__version__ = "0.1.0"
