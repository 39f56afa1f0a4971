@echo off
rem Takes Ombrel out of the framework's list. Run as administrator; then delete this folder. Settings stay.
setlocal
set regsvr32=%SystemRoot%\SysWOW64\regsvr32.exe
if not exist "%regsvr32%" set regsvr32=%SystemRoot%\System32\regsvr32.exe
"%regsvr32%" /u "%~dp0Ombrel.dll"
