@echo off
rem Registers Ombrel where this folder stands. Run as administrator.
setlocal
set regsvr32=%SystemRoot%\SysWOW64\regsvr32.exe
if not exist "%regsvr32%" set regsvr32=%SystemRoot%\System32\regsvr32.exe
set settings=%ProgramData%\Ombrel\Settings
if not exist "%settings%" mkdir "%settings%"
if not exist "%ProgramData%\Ombrel\Data" mkdir "%ProgramData%\Ombrel\Data"
if not exist "%settings%\Ombrel_Settings.xml" copy "%~dp0Settings\Ombrel_Settings.xml" "%settings%\" >nul
icacls "%ProgramData%\Ombrel" /grant *S-1-5-32-545:(OI)(CI)M >nul
"%regsvr32%" "%~dp0Ombrel.dll"
