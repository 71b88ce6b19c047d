#!/usr/bin/env python3
"""Runs every bindings/<language>/generate.py: makes what is made from api/tessaro.json, or with --check fails where it is stale."""
import subprocess
import sys
from pathlib import Path

generators = sorted(Path(__file__).resolve().parent.glob("*/generate.py"))
sys.exit(any([subprocess.run([sys.executable, "-B", one, *sys.argv[1:]], check=False).returncode for one in generators]))
