"""Packages of input and output: zelmar.io.xml."""
