package orvane.str.diskarray;

/** Lacks lu, the last field whose failure drops the object. */
public class ParityCorrectionStatusList {
    public CorrectionLuStatus[] lu_absent;
}
