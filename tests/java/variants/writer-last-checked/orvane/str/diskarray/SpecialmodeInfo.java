package orvane.str.diskarray;

/** Lacks hgoptinfo, the last field whose failure drops the object. */
public class SpecialmodeInfo {
    public int specialmode_id;
    public HGOptionInfo hgoptinfo_absent;
}
