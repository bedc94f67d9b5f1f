package orvane.str.diskarray;

/** Lacks topology_ref, the last field whose failure drops the object. */
public class FibreInformationConnector {
    public int topology_ref_absent;
}
