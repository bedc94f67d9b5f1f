package orvane.str.diskarray;

public class ParityCorrectionStatusList {
    public CorrectionLuStatus[] lu;
}
