#!/usr/bin/env python3
"""Checks JSON files against a schema: schemapruefung.py SCHEMA FOLDER prints the faults; exit status 1 for any."""
import json
import sys
from pathlib import Path

import jsonschema  # Debian: python3-jsonschema

schema = json.loads(Path(sys.argv[1]).read_text(encoding="utf-8"))
jsonschema.Draft7Validator.check_schema(schema)
validator = jsonschema.Draft7Validator(schema)
files = sorted(Path(sys.argv[2]).iterdir())
faults = [f"{file.name}: {fault.json_path}: {fault.message}"
          for file in files for fault in validator.iter_errors(json.loads(file.read_text(encoding="utf-8")))]
print("\n".join(faults) or f"{len(files)} files are as the schema says")
sys.exit(1 if faults or not files else 0)
